#pragma once

#include <string>
#include <vector>

#include "mechanics/projectile/launch.h"

namespace tavrelo::mechanics::projectile {

/// The five equations of a mover: x, y, vx, vy and the trajectory, coefficients rounded to `decimals`. With
/// parameters they keep t - t0 and x - x0; a complete launch is expanded around t = 0.
std::vector<EquationLine> EquationLines(int mover, const Equations& equations, int decimals);

/// The report of a launch: title, what was given, the equations, and the reach of one thrown upward.
std::vector<std::string> LaunchReport(int mover, const Equations& equations,
                                      const std::vector<EquationLine>& lines, int decimals);

/// Rounded for showing. A coefficient so small that it would read as 0, and a parabola as a straight line,
/// keeps the working decimals or else three digits.
double ShownCoefficient(double coefficient, int decimals);

}  // namespace tavrelo::mechanics::projectile
