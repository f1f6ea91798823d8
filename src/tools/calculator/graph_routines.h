#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Graphs on `pic`. They write no report. A point that cannot be evaluated clears the picture.

Outcome CartesianGraph(RoutineRun& run);  // y = f(x) between two limits
Outcome PolarGraph(RoutineRun& run);      // r = f(angle) between two angles, with a number of points if given
Outcome ParametricGraph(RoutineRun& run);  // "f & g": x = f(u), y = g(u), likewise

/// The formula between two limits on a cleared picture.
void DrawFormula(RoutineRun& run, double first, double last);

}  // namespace tavrelo::tools::calculator
