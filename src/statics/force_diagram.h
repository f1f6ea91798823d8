#pragma once

#include "shell/surface.h"
#include "statics/force_table.h"
#include "vectors/draw_engine.h"

namespace tavrelo::statics {

/// The two axes through the middle of the canvas, turned by `rotation` degrees; unless `keep`, the canvas is
/// cleared first.
void DrawForceAxes(shell::Surface& canvas, bool keep, double rotation);

/// Clears the canvas and draws the axes and all forces, each at its place in the table, lengths in scale; the
/// whole drawing turned by `rotation` degrees. Without forces nothing happens.
void DrawForces(shell::Surface& canvas, vectors::DrawEng& engine, const ForceTable& table, double rotation);

}  // namespace tavrelo::statics
