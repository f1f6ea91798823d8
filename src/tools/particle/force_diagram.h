#pragma once

#include "tools/particle/forces_in_view.h"
#include "window/surface.h"

namespace tavrelo::tools::particle {

/// Clears the canvas and draws the diagram, turned by `rotation` degrees: the two axes through the middle and
/// all forces, each from its place, lengths in scale.
void DrawForces(window::Surface& canvas, const ForcesInView& forces, double rotation);

}  // namespace tavrelo::tools::particle
