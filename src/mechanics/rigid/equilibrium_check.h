#pragma once

#include "mechanics/rigid/body_solver.h"

namespace tavrelo::mechanics::rigid {

/// Whether the results keep the bodies in equilibrium: no sum that was chosen is above 0.001, nor above a
/// thousandth of its largest term, rounding allowed. Fails with Overflow.
bool HoldsWith(const BodyEquations& equations, const BodyResults& results);

}  // namespace tavrelo::mechanics::rigid
