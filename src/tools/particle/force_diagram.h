#pragma once

#include "tools/particle/forces_in_view.h"
#include "window/surface.h"

namespace tavrelo::tools::particle {

/// Clears the canvas and draws the diagram, turned by `rotation` degrees: the two axes through the middle and
/// all forces, each from its place, lengths in scale. Who points at an arrow is told its force, its numbers
/// rounded.
void DrawForces(window::Surface& canvas, const ForcesInView& forces, double rotation, int decimals);

}  // namespace tavrelo::tools::particle
