#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "expr/expression.h"

namespace tavrelo::mechanics::kinematics {

/// How a motion is given. Along a line by its position, velocity or acceleration; in the plane by x(t) and
/// y(t) or by r(t) and theta(t). The numbers are those of the icons.
enum class Way {
    Position = 11,
    Velocity = 12,
    Acceleration = 13,
    Plane = 14,
    Polar = 15,
};
constexpr bool IsPlane(Way way) { return way == Way::Plane || way == Way::Polar; }

/// Where and how fast the motion is at the time t; the start of the ways that are integrated. `v` counts only
/// where the acceleration is given.
struct LineStart {
    double t = 0;
    double x = 0;
    double v = 0;
};

/// A formula typed in t, or t and x, or t, x and v, ready to be evaluated with these values in this order.
class MotionFormula {
  public:
    /// `variables`: 1 to 3. `angle_factor` is the radians in one unit of angle and must outlive the formula.
    /// Fails with TypeMismatch on an empty text, an error of syntax, an unknown name and a variable of the
    /// language that this way does not have.
    MotionFormula(std::string_view formula, int variables, const double& angle_factor);

    /// Fails where the formula has no value.
    double At(std::span<const double> values) { return m_expression.EvaluateNumber(values); }
    double At(std::initializer_list<double> values) { return At(std::span(values.begin(), values.size())); }
    /// At of many points: a column of numbers for each variable, all of one length. Fails where the formula
    /// has no value at one of them.
    std::vector<double> AtAll(std::initializer_list<std::span<const double>> columns) {
        std::vector<double> values(columns.begin()->size());
        m_expression.EvaluateColumn(std::span(columns.begin(), columns.size()), values);
        return values;
    }

  private:
    expr::CExpression m_expression;
};

}  // namespace tavrelo::mechanics::kinematics
