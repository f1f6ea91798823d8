#pragma once

#include <array>
#include <variant>
#include <vector>

#include "mechanics/projectile/worked.h"

namespace tavrelo::mechanics::projectile {

// Pairs of equations in t = tan q0 and the horizontal component c = v0 cos q0, as the relations of two points
// give them (RelationsFor). They find the launch but not from where, so nothing is planted. All fail with
// Overflow.

/// The launches that solve a system: one or two.
using TanSolutions = std::variant<text::Refusal, std::vector<PolarVelocity>>;

/// A1 t + B1 w = C1, A2 t + B2 w = C2 with w = 1/c^2; the coefficients in this order.
TanSolutions SolveSquaredPair(const std::array<double, 6>& coefficients);
/// The same with w = 1/c.
TanSolutions SolvePlainPair(const std::array<double, 6>& coefficients);
/// A t + B/c^2 = C, D t + E/c = F.
TanSolutions SolveMixedPair(const std::array<double, 6>& coefficients);
/// A t + B/c^2 = C, c = D.
TanSolutions SolveWithHorizontal(const std::array<double, 4>& coefficients);
/// A t + B/c^2 = C, v0 sin q0 = D.
TanSolutions SolveWithVertical(const std::array<double, 4>& coefficients);

/// How a report names the solutions: speed and angle in a line each, or in one line.
enum class TanLayout { TwoLines, OneLine, OneLinePlainAngle };
std::vector<std::string> TanReport(const std::vector<PolarVelocity>& solutions, TanLayout layout,
                                   int decimals);

}  // namespace tavrelo::mechanics::projectile
