#pragma once

#include <string>
#include <vector>

#include "window/form1.h"

namespace tavrelo::window {

/// What a control is called now by a voice that reads the window aloud; empty for one that stands there only
/// to be seen. Follows the tool in use and the captions that the name takes up.
std::string AccessibleName(const Form1& form, const Control& control);

/// The controls whose names take up the caption of that one, itself aside.
std::vector<Control*> NamedAfter(const Form1& form, const Control& label);

}  // namespace tavrelo::window
