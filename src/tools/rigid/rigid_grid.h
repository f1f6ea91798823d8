#pragma once

#include "window/form1.h"

namespace tavrelo::tools::rigid {

/// Columns of `gd1`.
enum ForceGridCol { kForceNumber, kForceBody, kForcePoint, kForceText, kForceX, kForceY, kForceCouple };

/// Lays out `gd1`, the table of the forces on the bodies: its headings alone.
void ArrangeGd1(window::Form1& form);

}  // namespace tavrelo::tools::rigid
