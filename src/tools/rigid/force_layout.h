#pragma once

#include "tools/rigid/structure_layout.h"

namespace tavrelo::tools::rigid {

/// Direction in degrees in which an unknown one is drawn when the user tells none.
inline constexpr double kDefaultDrawDirection = 45;

/// Whether the force is to be drawn in a direction that only the user knows.
bool NeedsDrawDirection(const mechanics::rigid::BodyForce& force);

/// Adds the arrows and round arrows of the bodies in view, and their labels.
void AddForces(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places);

}  // namespace tavrelo::tools::rigid
