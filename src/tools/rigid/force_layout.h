#pragma once

#include "tools/rigid/structure_layout.h"

namespace tavrelo::tools::rigid {

/// Adds the arrows and round arrows of the bodies in view, and their labels.
void AddForces(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places);

}  // namespace tavrelo::tools::rigid
