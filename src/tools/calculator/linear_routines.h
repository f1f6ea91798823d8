#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

/// The determinant of a square block.
Outcome Determinant(Task& task);
/// The system whose coefficients are a square block, the right-hand side the column behind it.
Outcome LinearSystem(Task& task);

}  // namespace tavrelo::tools::calculator
