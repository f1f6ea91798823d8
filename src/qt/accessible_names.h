#pragma once

#include <QString>

#include "shell/control.h"

namespace tavrelo::qt {

/// What a screen reader calls a control: its caption, or a description in Spanish where it has none.
QString AccessibleName(const shell::Control& control);

}  // namespace tavrelo::qt
