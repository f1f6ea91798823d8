#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

// Curves of least squares through the points x1, y1, x2, y2, ...: report, and graph on `pic`.

Outcome LineFit(Task& task);
/// y = b e^(a x), as the line through the points (x, ln y).
Outcome ExponentialFit(Task& task);
/// y = b x^a, as the line through the points (ln x, ln y).
Outcome PowerFit(Task& task);
/// Of the order that is the last argument.
Outcome PolynomialFit(Task& task);

}  // namespace tavrelo::tools::calculator
