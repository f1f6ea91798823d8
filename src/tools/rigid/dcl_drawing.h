#pragma once

#include "tools/rigid/rigid_picture.h"
#include "tools/rigid/rigid_sheet.h"

namespace tavrelo::tools::rigid {

/// Draws the forces and couples of the bodies in view at the drawing places of their rows.
void DrawDCL(RigidSheet& sheet, const RigidScene& scene);

}  // namespace tavrelo::tools::rigid
