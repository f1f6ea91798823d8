#include "mechanics/kinematics/line_motion.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "mechanics/kinematics/time_steps.h"
#include "numeric/checked.h"
#include "numeric/derivatives.h"
#include "numeric/ode.h"

namespace tavrelo::mechanics::kinematics {
namespace {

using numeric::Finite;

// A looser accuracy drifts in the third decimal over a few periods of a spring.
constexpr double kAccuracy = 1e-8;
constexpr double kGraphDerivativeStep = 0.5;  // first step of the velocity along a graph

/// Of the differential equation; also how many variables its formula has less one.
int OrderOf(Way way) { return way == Way::Velocity ? 1 : 2; }

/// A given velocity or acceleration as a differential equation, with the state that its start gives.
class Equation {
  public:
    Equation(const LineMotion& motion, const double& angle_factor)
        : m_order(OrderOf(motion.way)),
          m_formula(motion.formula, m_order + 1, angle_factor),
          m_t(motion.start.t),
          m_y{motion.start.x, m_order == 2 ? motion.start.v : 0} {}

    int Order() const { return m_order; }
    const numeric::OdeState& State() const { return m_y; }
    /// The formula at a time and a state.
    double At(double t, const numeric::OdeState& y) {
        const double values[] = {t, y[0], y[1]};
        return Finite(m_formula.At(std::span(values).first(static_cast<std::size_t>(m_order) + 1)));
    }
    /// The formula along a table of times and states.
    std::vector<double> AtAll(const numeric::OdeTable& table) {
        return m_order == 1 ? m_formula.AtAll({table.x, table.y[0]})
                            : m_formula.AtAll({table.x, table.y[0], table.y[1]});
    }
    /// Carries the state on to the time t; false when there are too many steps.
    bool MoveTo(double t) {
        if (t == m_t)
            return true;
        const double first_step = std::min(numeric::kOdeFirstStep, std::abs(t - m_t));
        const auto outcome =
            numeric::ODEInt(RightSide(), m_order, m_y, m_t, t, kAccuracy, first_step, numeric::kOdeLeastStep);
        m_t = t;
        return outcome == numeric::OdeOutcome::Done;
    }
    numeric::OdeTable TableTo(double t) {
        return numeric::RKDumb(RightSide(), m_order, m_y, m_t, t, kGraphSteps);
    }

  private:
    struct Side {
        MotionFormula& formula;
        double operator()(std::span<const double> values) const { return formula.At(values); }
    };
    Side& RightSide() { return m_side; }

    int m_order;
    MotionFormula m_formula;
    Side m_side{m_formula};
    double m_t;
    numeric::OdeState m_y;
};

LineState PositionAt(const LineMotion& motion, double t, const double& angle_factor) {
    MotionFormula formula(motion.formula, 1, angle_factor);
    const auto x = [&](double time) { return formula.At({time}); };
    return {t, Finite(x(t)), SlopeAt(x, t, DerivativeStep(t)),
            numeric::SecondDeriv(x, t, SecondDerivativeStep(t))};
}

std::vector<double> Sampled(const std::vector<double>& times, auto&& function) {
    std::vector<double> values;
    values.reserve(times.size());
    for (const double t : times)
        values.push_back(Finite(function(t)));
    return values;
}

/// numeric::SecondDeriv at all times, its five points taken by columns.
std::vector<double> SecondDerivatives(MotionFormula& formula, const std::vector<double>& times, double step) {
    constexpr std::array<double, 5> kPlaces = {2.0, 1.0, 0.0, -1.0, -2.0};
    std::array<std::vector<double>, kPlaces.size()> values;
    std::vector<double> places(times.size());
    for (std::size_t i = 0; i < kPlaces.size(); ++i) {
        std::transform(times.begin(), times.end(), places.begin(),
                       [&](double t) { return t + kPlaces[i] * step; });
        values[i] = formula.AtAll({places});
    }
    std::vector<double> derivatives(times.size());
    for (std::size_t k = 0; k < times.size(); ++k)
        derivatives[k] = numeric::SecondDifference(
            {values[0][k], values[1][k], values[2][k], values[3][k], values[4][k]}, step);
    return derivatives;
}

LineCurves SamplePosition(const LineMotion& motion, double t0, double t1, const CurveChoice& choice,
                          const double& angle_factor) {
    MotionFormula formula(motion.formula, 1, angle_factor);
    const auto x = [&](double time) { return formula.At({time}); };
    LineCurves curves = {EqualSteps(t0, t1, kGraphSteps), {}, {}, {}};
    const double step = (t1 - t0) / kGraphSteps;
    if (choice.x)
        curves.x = formula.AtAll({curves.t});
    if (choice.v)
        curves.v = Sampled(curves.t, [&](double t) { return SlopeAt(x, t, kGraphDerivativeStep); });
    if (choice.a)
        curves.a = SecondDerivatives(formula, curves.t, step);
    return curves;
}

std::variant<LineCurves, TooManySteps> SampleEquation(const LineMotion& motion, double t0, double t1,
                                                      const CurveChoice& choice, const double& angle_factor) {
    Equation equation(motion, angle_factor);
    if (!equation.MoveTo(t0))
        return TooManySteps{};
    const numeric::OdeTable table = equation.TableTo(t1);
    if (table.x.size() < 2)
        throw numeric::RuntimeFailure(numeric::FailureCode::OutOfDomain, "times of a graph too close");
    LineCurves curves = {table.x, {}, {}, {}};
    const std::vector<double> formula = equation.AtAll(table);
    const bool velocity_given = motion.way == Way::Velocity;
    if (choice.x)
        curves.x = table.y[0];
    if (choice.v)
        curves.v = velocity_given ? formula : table.y[1];
    if (choice.a)
        curves.a = velocity_given ? SlopeOf(formula, (t1 - t0) / kGraphSteps) : formula;
    return curves;
}

}  // namespace

std::variant<LineState, TooManySteps> LineAt(const LineMotion& motion, double t, const double& angle_factor) {
    if (motion.way == Way::Position)
        return PositionAt(motion, t, angle_factor);
    Equation equation(motion, angle_factor);
    if (!equation.MoveTo(t))
        return TooManySteps{};
    const double value = equation.At(t, equation.State());
    if (equation.Order() == 1)
        return LineState{t, equation.State()[0], value, std::nullopt};
    return LineState{t, equation.State()[0], equation.State()[1], value};
}

std::variant<LineCurves, TooManySteps> SampleLine(const LineMotion& motion, double t0, double t1,
                                                  const CurveChoice& choice, const double& angle_factor) {
    RequireSpan(t0, t1);
    const auto [first, last] = std::minmax(t0, t1);
    if (motion.way == Way::Position)
        return SamplePosition(motion, first, last, choice, angle_factor);
    return SampleEquation(motion, first, last, choice, angle_factor);
}

}  // namespace tavrelo::mechanics::kinematics
