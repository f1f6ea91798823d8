#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Values of the formula at the given points, at most a hundred of them.

Outcome TableOfX(RoutineRun& run);      // x1, x2, ...
Outcome TableOfXY(RoutineRun& run);     // x1, y1, x2, y2, ...
Outcome TableOfXYZ(RoutineRun& run);    // x1, y1, z1, ...
Outcome TableOfSteps(RoutineRun& run);  // from x1 to x2 by an increment

/// At each of the points, with the estimated error.
Outcome FirstDerivative(RoutineRun& run);
/// At a point, by the given step or the usual one.
Outcome SecondDerivative(RoutineRun& run);
/// Between two limits; a third argument chooses the adaptive method, a fourth one its accuracy.
Outcome Integral(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
