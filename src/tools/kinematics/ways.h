#pragma once

#include <string_view>

#include "mechanics/kinematics/motion_formula.h"

namespace tavrelo::tools::kinematics {

/// What the panel shows for one way of giving the motion.
struct WayPanel {
    mechanics::kinematics::Way way;
    std::string_view first_line;
    std::string_view second_line;  // empty: the second formula is not in view
    int start_values;              // of t0, x0 and v0, taken from the front
};

/// Fails with SubscriptRange for a number that is no way.
const WayPanel& PanelOf(int way);

}  // namespace tavrelo::tools::kinematics
