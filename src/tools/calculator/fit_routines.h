#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Curves of least squares through the points x1, y1, x2, y2, ...: report, and graph on `pic`.

Outcome LineFit(RoutineRun& run);
/// y = b e^(a x), as the line through the points (x, ln y).
Outcome ExponentialFit(RoutineRun& run);
/// y = b x^a, as the line through the points (ln x, ln y).
Outcome PowerFit(RoutineRun& run);
/// Of the order that is the last argument.
Outcome PolynomialFit(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
