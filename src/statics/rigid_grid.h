#pragma once

#include "shell/form1.h"

namespace tavrelo::statics {

/// Lays out `gd1`, the table of the forces on the bodies: its headings alone.
void ArrangeGd1(shell::Form1& form);

}  // namespace tavrelo::statics
