#pragma once

#include "problem.h"

namespace tavrelo::physics {

// Throws without drag.
Verdict PlayThrownPoint(Problem& problem);
/// The same height on the other side of the top, and the mode of the speed data.
Verdict PlayOtherSide(Problem& problem);
Verdict PlayLaunchSpeed(Problem& problem);
Verdict PlayLaunchAngle(Problem& problem);
Verdict PlayHorizontalSpeed(Problem& problem);
Verdict PlayVerticalSpeed(Problem& problem);
Verdict PlayLaunch(Problem& problem);
Verdict PlayWholeFlight(Problem& problem);
Verdict PlayTwoThrownPoints(Problem& problem);
Verdict PlayIncline(Problem& problem);
Verdict PlayCrossing(Problem& problem);
Verdict PlayPath(Problem& problem);
Verdict PlayCollision(Problem& problem);
Verdict PlayInterception(Problem& problem);

}  // namespace tavrelo::physics
