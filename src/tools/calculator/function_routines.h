#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

// Values of the formula at the given points, at most a hundred of them.

Outcome TableOfX(Task& task);      // x1, x2, ...
Outcome TableOfXY(Task& task);     // x1, y1, x2, y2, ...
Outcome TableOfXYZ(Task& task);    // x1, y1, z1, ...
Outcome TableOfSteps(Task& task);  // from x1 to x2 by an increment

/// At each of the points, with the estimated error.
Outcome FirstDerivative(Task& task);
/// At a point, by the given step or the usual one.
Outcome SecondDerivative(Task& task);
/// Between two limits; a third argument chooses the adaptive method, a fourth one its accuracy.
Outcome Integral(Task& task);

}  // namespace tavrelo::tools::calculator
