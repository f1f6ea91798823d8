#pragma once

#include <QString>

#include "window/control.h"

namespace tavrelo::qt {

/// What a screen reader calls a control: its caption, or a description in Spanish where it has none.
QString AccessibleName(const window::Control& control);

}  // namespace tavrelo::qt
