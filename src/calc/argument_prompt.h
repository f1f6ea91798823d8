#pragma once

#include "shell/form1.h"

namespace tavrelo::calc {

/// Paints a routine's title on `picArgs1` and its prompt on `picArgs2`; 0 clears both.
void ShowArgs(shell::Form1& form, int routine);

}  // namespace tavrelo::calc
