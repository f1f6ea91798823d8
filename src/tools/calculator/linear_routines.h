#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// The determinant of a square block.
Outcome Determinant(RoutineRun& run);
/// The system whose coefficients are a square block, the right-hand side the column behind it.
Outcome LinearSystem(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
