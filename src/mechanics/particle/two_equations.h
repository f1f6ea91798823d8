#pragma once

#include <array>
#include <variant>

#include "text/refusal.h"

namespace tavrelo::mechanics::particle {

/// The coefficients of two equations of equilibrium in two unknowns, A u + B w + C = 0 and D u + E w + F = 0;
/// where w is an angle t, cos t stands for it in the first equation and sin t in the second.
struct TwoEquations {
    double a, b, c;
    double d, e, f;
};

/// Values of the two unknowns, angles in degrees.
struct Root {
    double first;
    double second;
};
using TwoRoots = std::array<Root, 2>;

// Each gives its roots, or the text why there are none, and fails with Overflow. A magnitude that comes out
// negative is turned over with its angle. Where an angle is unknown a root may be false, which only the sums
// of the forces tell.

/// A u + B w + C = 0, D u + E w + F = 0.
std::variant<text::Refusal, Root> SolveTwoMagnitudes(const TwoEquations& equations);
/// A u + B cos t + C = 0, D u + E sin t + F = 0: u and t.
std::variant<text::Refusal, TwoRoots> SolveMagnitudeAndAngle(const TwoEquations& equations);
/// A cos a + B cos b + C = 0, D sin a + E sin b + F = 0 with D = A and E = B: a and b.
std::variant<text::Refusal, TwoRoots> SolveTwoAngles(const TwoEquations& equations);
/// u (A + B cos t) + C = 0, u (D + E sin t) + F = 0: u and t.
std::variant<text::Refusal, TwoRoots> SolveSharedMagnitude(const TwoEquations& equations);

}  // namespace tavrelo::mechanics::particle
