#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Equations of one unknown. The arguments are the coefficients, in the order of the routine's prompt.

Outcome Quadratic(RoutineRun& run);         // A x^2 + B x + C = 0
Outcome ShiftedQuadratic(RoutineRun& run);  // A (B x + C)^2 + D x + E = 0
Outcome Cubic(RoutineRun& run);             // A x^3 + B x^2 + C x + D = 0
Outcome Trigonometric(RoutineRun& run);     // A cos q + B sen q + C = 0
/// f(x) = 0 between two limits.
Outcome RootSearch(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
