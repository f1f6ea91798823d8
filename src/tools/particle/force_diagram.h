#pragma once

#include "drawing/draw_engine.h"
#include "mechanics/forces/force_table.h"
#include "window/surface.h"

namespace tavrelo::tools::particle {

/// The two axes through the middle of the canvas, turned by `rotation` degrees; unless `keep`, the canvas is
/// cleared first.
void DrawForceAxes(window::Surface& canvas, bool keep, double rotation);

/// Clears the canvas and draws the axes and all forces, each at its place in the table, lengths in scale; the
/// whole drawing turned by `rotation` degrees. Without forces nothing happens.
void DrawForces(window::Surface& canvas, drawing::DrawEng& engine, const mechanics::forces::ForceTable& table,
                double rotation);

}  // namespace tavrelo::tools::particle
