#pragma once

#include <string>

#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/plane_motion.h"

namespace tavrelo::tools::kinematics {

/// The curves of a motion along a line in words, each over its own extent.
std::string DescribeCurves(const mechanics::kinematics::LineCurves& curves, int decimals);

/// The path of a motion in the plane in words.
std::string DescribeTrajectory(const mechanics::kinematics::Trajectory& path, int decimals);

}  // namespace tavrelo::tools::kinematics
