#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Vectors of the plane: report, and diagram on `pic`. A text that is no vector is refused. Factors and angles
// are numbers; what is missing or is no number fails with a RuntimeFailure.

Outcome SumAndProducts(RoutineRun& run);     // a, b
Outcome VectorListSum(RoutineRun& run);      // F1, F2, ...
Outcome FactorsSum(RoutineRun& run);         // l1, F1, l2, F2, ...
Outcome VectorListMoments(RoutineRun& run);  // r1, F1, r2, F2, ..., and the point of the moments if any
Outcome RotateVector(RoutineRun& run);       // V, degrees, "v" for the vector or anything else for the axes
Outcome BaseDecompose(RoutineRun& run);      // a, b, V
Outcome VectorFromProjections(RoutineRun& run);  // a, Ca, b, Cb

}  // namespace tavrelo::tools::calculator
