#pragma once

#include "window/form1.h"

namespace tavrelo::tools::kinematics {

/// Prepares the panel for a way of giving the motion (11 to 15): captions, and which lines and start values
/// are in view.
void ShowWay(window::Form1& form, int way);

}  // namespace tavrelo::tools::kinematics
