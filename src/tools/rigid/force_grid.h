#pragma once

#include "tools/rigid/force_look.h"
#include "window/controls.h"

// `gd1`, the table of the forces on the bodies: one row a force behind the headings.

namespace tavrelo::tools::rigid {

/// The headings alone.
void ArrangeForces(window::Grid& grid);
/// A force more, each component as its format wrote it.
void AddForceRow(window::Grid& grid, const mechanics::rigid::BodyForce& force, const ForceLook& look);
/// The components and couples that are known by now, in numbers; the rest stays as it was typed.
void ShowKnownValues(window::Grid& grid, const mechanics::rigid::BodyForces& forces, int decimals);

}  // namespace tavrelo::tools::rigid
