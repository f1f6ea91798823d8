#pragma once

#include "mechanics/rigid/body_solver.h"

namespace tavrelo::mechanics::rigid {

/// Solves the equations of one body with one unknown angle q, three equations and two other unknowns, all
/// listed in the results in their order and then the angle. A known force at q makes a choice between two
/// roots, equal ones too. A force unknown in magnitude as well is found at once, unless its magnitude stands
/// elsewhere on the body, as that of the rope over a pulley: then the roots with a magnitude below 0 are
/// dropped. Refused: other counts, different magnitudes at q, and what has no solution. Fails with Overflow.
BodyOutcome SolveWithAngle(const BodyEquations& equations);

}  // namespace tavrelo::mechanics::rigid
