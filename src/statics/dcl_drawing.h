#pragma once

#include "statics/rigid_picture.h"
#include "statics/rigid_sheet.h"

namespace tavrelo::statics {

/// Draws the forces and couples of the bodies in view at the drawing places of their rows.
void DrawDCL(RigidSheet& sheet, const RigidScene& scene);

}  // namespace tavrelo::statics
