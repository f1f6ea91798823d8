#pragma once

#include "shell/form1.h"

namespace tavrelo::statics {

/// Columns of `gd1`.
enum ForceGridCol { kForceNumber, kForceBody, kForcePoint, kForceText, kForceX, kForceY, kForceCouple };

/// Lays out `gd1`, the table of the forces on the bodies: its headings alone.
void ArrangeGd1(shell::Form1& form);

}  // namespace tavrelo::statics
