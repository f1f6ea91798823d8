#pragma once

#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/plane_motion.h"
#include "window/surface.h"

namespace tavrelo::tools::kinematics {

/// The curves in one frame, each over its own extent and in its own colour, with its letter, its largest and
/// its smallest value beside the frame and the times below it.
void DrawCurves(window::Surface& surface, const mechanics::kinematics::LineCurves& curves, int decimals);

/// The path of a motion in the plane with the extremes of x and y.
void DrawTrajectory(window::Surface& surface, const mechanics::kinematics::Trajectory& path, int decimals);

}  // namespace tavrelo::tools::kinematics
