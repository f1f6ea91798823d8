#pragma once

#include "calc/task.h"

namespace tavrelo::calc {

/// The determinant of a square block.
Outcome Determinant(Task& task);
/// The system whose coefficients are a square block, the right-hand side the column behind it.
Outcome LinearSystem(Task& task);

}  // namespace tavrelo::calc
