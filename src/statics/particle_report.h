#pragma once

#include <string>
#include <vector>

#include "statics/equation_text.h"
#include "statics/equilibrium.h"
#include "statics/substitution.h"

namespace tavrelo::statics {

/// A found unknown: its plain name, its value and "" or the sign of degrees behind it.
struct NamedValue {
    std::string name;
    double value;
    const char* unit;
};
inline constexpr const char* kDegrees = "°";

/// The two equations as they were solved, and what was found.
struct Report {
    Equation x;
    Equation y;
    std::vector<NamedValue> values;
};

/// ";SF!x = 3": a line of the report on the sum along an axis.
std::string SumLine(const char* axis, const std::string& right_side);
/// " = 3" or " = 30°".
std::string ShownValue(const NamedValue& value, int decimals);

/// The solution of a table whose components are all known. The sums of the report's check, shown as whole
/// numbers, go on from `start`.
Solution Finish(const ForceTable& table, const Report& report, const ComponentSums& start, int decimals);

}  // namespace tavrelo::statics
