#pragma once

#include "mechanics/projectile/graph.h"
#include "window/surface.h"

namespace tavrelo::tools::projectile {

/// Clears the picture and draws the trajectories in their frame, each in its mover's colour, the ranges
/// beside the frame. `decimals` are those of its words.
void DrawTrajectories(window::Surface& picture, const mechanics::projectile::Graph& graph, int decimals);

}  // namespace tavrelo::tools::projectile
