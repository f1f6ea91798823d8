#pragma once

#include "mechanics/projectile/graph.h"
#include "window/surface.h"

namespace tavrelo::tools::projectile {

/// Clears the picture and draws the trajectories in their frame, each in its mover's colour, the ranges
/// beside the frame.
void DrawTrajectories(window::Surface& picture, const mechanics::projectile::Graph& graph);

}  // namespace tavrelo::tools::projectile
