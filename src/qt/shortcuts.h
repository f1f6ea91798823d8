#pragma once

#include <QWidget>

#include "qt/focus_guide.h"
#include "window/form1.h"

namespace tavrelo::qt {

/// The keys of the whole window: the program's own, and those that go from panel to panel.
void MakeProgramShortcuts(window::Form1& form, QWidget& window, FocusGuide& guide);

}  // namespace tavrelo::qt
