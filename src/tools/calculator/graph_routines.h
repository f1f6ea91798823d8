#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

// Graphs on `pic`. They write no report. A point that cannot be evaluated clears the picture.

Outcome CartesianGraph(Task& task);   // y = f(x) between two limits
Outcome PolarGraph(Task& task);       // r = f(angle) between two angles, with a number of points if given
Outcome ParametricGraph(Task& task);  // "f & g": x = f(u), y = g(u), likewise

/// The formula between two limits on a cleared picture.
void DrawFormula(Task& task, double first, double last);

}  // namespace tavrelo::tools::calculator
