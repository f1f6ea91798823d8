#pragma once

#include <variant>
#include <vector>

#include "text/refusal.h"

namespace tavrelo::mechanics::particle {

/// Systems of two equations of equilibrium in two unknowns; u is a magnitude, angles are in degrees.
enum Solve2Kind {
    kLinear = 1,             // A u + B w + C = 0, D u + E w + F = 0: u, w
    kMagnitudeAndAngle = 2,  // A u + B cos t + C = 0, D u + E sin t + F = 0: u1, t1, u2, t2
    kTwoAngles = 3,          // A cos a + B cos b + C = 0, A sin a + B sin b + F = 0: a1, b1, a2, b2
    kSharedMagnitude = 4,    // u (A + B cos t) + C = 0, u (D + E sin t) + F = 0: u1, t1, u2, t2
};

/// The two numbers, or the two candidate pairs, that solve a system, or the text why there are none.
/// Candidates have no negative magnitude: a negative one is turned over with its angle. In the last two kinds
/// they may be false roots, which only the sums of the forces tell. Any other kind is "Error en los datos.".
/// Fails with RuntimeFailure on overflow.
std::variant<text::Refusal, std::vector<double>> Solve2(int kind, double a, double b, double c, double d,
                                                        double e, double f);

}  // namespace tavrelo::mechanics::particle
