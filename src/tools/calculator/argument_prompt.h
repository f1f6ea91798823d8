#pragma once

#include "window/form1.h"

namespace tavrelo::tools::calculator {

/// Paints a routine's title on `picArgs1` and its prompt on `picArgs2`; 0 clears both.
void ShowArgs(window::Form1& form, int routine);

}  // namespace tavrelo::tools::calculator
