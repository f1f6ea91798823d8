#pragma once

#include "problem.h"

namespace tavrelo::physics {

// Uniformly accelerated motion along a line.
Verdict PlayPoint(Problem& problem);
Verdict PlayInterval(Problem& problem);
/// The moment of the opposite speed.
Verdict PlayTurn(Problem& problem);
Verdict PlayUnknownSpeed(Problem& problem);
Verdict PlayUnknownAcceleration(Problem& problem);
Verdict PlayBothUnknown(Problem& problem);
Verdict PlayTwoPoints(Problem& problem);
Verdict PlayIntervalLine(Problem& problem);
Verdict PlayThreePoints(Problem& problem);
Verdict PlayLink(Problem& problem);
Verdict PlayMeeting(Problem& problem);
Verdict PlayRatios(Problem& problem);
Verdict PlaySpeedSystem(Problem& problem);
Verdict PlayQuadratic(Problem& problem);
Verdict PlayDistance(Problem& problem);

}  // namespace tavrelo::physics
