#pragma once

#include "tools/rigid/rigid_picture.h"
#include "tools/rigid/rigid_sheet.h"

namespace tavrelo::tools::rigid {

/// Sets the drawing places of all points, structure and origin in the middle of the sheet with room for
/// arrows around, and draws the axes through the origin and the points. There must be a point.
void DrawConfig(RigidSheet& sheet, RigidScene& scene);

/// Draws one line over the places of the points; a letter without a point breaks it.
void DrawChain(RigidSheet& sheet, const mechanics::rigid::PointTable& points,
               const mechanics::rigid::LineRow& line);

/// Draws the lines of the systems in view, or of all systems while none is, over the places that DrawConfig
/// has set; returns how many rows it has drawn.
std::size_t DrawLines(RigidSheet& sheet, const RigidScene& scene);

}  // namespace tavrelo::tools::rigid
