#pragma once

#include <string>
#include <vector>

#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/plane_motion.h"

namespace tavrelo::mechanics::kinematics {

/// The report of a motion along a line at one time, as lines of rich-text markup.
std::vector<std::string> ReportOf(const LineState& state, int decimals);
/// The report of a motion in the plane.
std::vector<std::string> ReportOf(const PlaneState& state, Way way, int decimals);

}  // namespace tavrelo::mechanics::kinematics
