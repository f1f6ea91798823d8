#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

// Vectors of the plane: report, and diagram on `pic`. A text that is no vector is refused. Factors and angles
// are numbers; what is missing or is no number fails with a RuntimeFailure.

Outcome SumAndProducts(Task& task);         // a, b
Outcome VectorListSum(Task& task);          // F1, F2, ...
Outcome FactorsSum(Task& task);             // l1, F1, l2, F2, ...
Outcome VectorListMoments(Task& task);      // r1, F1, r2, F2, ..., and the point of the moments if any
Outcome RotateVector(Task& task);           // V, degrees, "v" for the vector or anything else for the axes
Outcome BaseDecompose(Task& task);          // a, b, V
Outcome VectorFromProjections(Task& task);  // a, Ca, b, Cb

}  // namespace tavrelo::tools::calculator
