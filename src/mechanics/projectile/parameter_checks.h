#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "mechanics/projectile/parameters.h"

namespace tavrelo::mechanics::projectile {

/// A pair as the formulas use it: differences from the start, and the known part of the launch.
struct Differences {
    double d = 0.0;  // of time
    double x = 0.0;
    double y = 0.0;
    double speed = 0.0;  // at the point
    double angle = 0.0;
    double known = 0.0;  // v0, its angle, v0x or v0y
};
Differences DifferencesOf(const Launch& launch, const PairData& data, double known);

/// Data that make an equation degenerate; a table row lists those of its pair, in the order of the tests.
enum class Check { None, LaunchAngle, SameTime, SameX, SameXOfTrajectory, UprightAngle, UprightLaunch };
using Checks = std::array<Check, 2>;

/// The first check that the data fail, as its message. LaunchAngle and UprightLaunch take `known` as an
/// angle.
std::optional<text::Refusal> FirstFailed(std::span<const Check> checks, const Differences& data);

/// A row of a routine: checks, formula, and what is said when it gives no value.
struct ParameterRow {
    Checks checks;
    std::vector<double> (*values)(const Differences&);
    std::string_view none;
};
ParameterValues Solve(const ParameterRow& row, const Differences& data);

}  // namespace tavrelo::mechanics::projectile
