#pragma once

#include "problem.h"

namespace tavrelo::physics {

// Motions given by formulas.
Verdict PlayGivenPosition(Problem& problem);
Verdict PlayGivenVelocity(Problem& problem);
Verdict PlayGivenAcceleration(Problem& problem);
Verdict PlayPlaneMotion(Problem& problem);
Verdict PlayPolarMotion(Problem& problem);
Verdict PlayLineCurves(Problem& problem);
Verdict PlayTrajectory(Problem& problem);

}  // namespace tavrelo::physics
