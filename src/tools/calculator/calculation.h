#pragma once

#include "tools/calculator/routine_table.h"

namespace tavrelo::tools::calculator {

/// Takes the selected arguments and the formula, tests them and lets the routine work with them. After a
/// refusal nothing has been written or drawn. Fails with a RuntimeFailure wherever the mathematics has no
/// result.
Outcome Perform(const Routine& routine, RoutineRun& run);

}  // namespace tavrelo::tools::calculator
