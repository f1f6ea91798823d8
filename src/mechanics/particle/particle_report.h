#pragma once

#include <array>
#include <string>
#include <vector>

#include "mechanics/forces/force_sums.h"
#include "mechanics/forces/sum_equation.h"
#include "mechanics/particle/equilibrium.h"

namespace tavrelo::mechanics::particle {

/// A found unknown: its plain name, its value and "" or the sign of degrees behind it.
struct NamedValue {
    std::string name;
    double value;
    const char* unit = "";
};
inline constexpr const char* kDegrees = "°";

/// The two equations as they were solved, and what was found.
struct Report {
    forces::SumEquation x;
    forces::SumEquation y;
    std::array<NamedValue, 2> values;
};

/// ";SF!x = 3": a line of the report on the sum along an axis.
std::string SumLine(const char* axis, const std::string& right_side);
/// " = 3" or " = 30°".
std::string ShownValue(const NamedValue& value, int decimals);

/// The solution of forces whose components are all known. The sums of the report's check, shown as whole
/// numbers, go on from `start`.
Solution Finish(std::vector<notation::Force> forces, const Report& report, const forces::ComponentSums& start,
                int decimals);

}  // namespace tavrelo::mechanics::particle
