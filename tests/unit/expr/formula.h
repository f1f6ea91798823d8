#pragma once

#include <string>
#include <vector>

#include "expr/expression.h"
#include "numeric/angles.h"
#include "text/value.h"

namespace tavrelo::testing {

inline constexpr double kDegrees = numeric::kRadiansPerDegree;
inline constexpr double kRadians = 1.0;

/// The value of a formula in degrees, its variables by name set to `vars`.
inline text::Value ValueOfFormula(const std::string& formula, const std::vector<text::Value>& vars = {}) {
    expr::CExpression expression(kDegrees);
    return expression.Evaluate(formula, vars);
}

}  // namespace tavrelo::testing
