#include "mechanics/kinematics/plane_motion.h"

#include <algorithm>
#include <cmath>

#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/time_steps.h"
#include "numeric/checked.h"
#include "numeric/derivatives.h"

namespace tavrelo::mechanics::kinematics {
namespace {

using numeric::Finite;

/// A formula in t with its first two derivatives at a time.
struct Jet {
    double value;
    double first;
    double second;
};
Jet JetOf(const std::string& formula, double t, const double& angle_factor) {
    MotionFormula parsed(formula, 1, angle_factor);
    const auto at = [&](double time) { return parsed.At({time}); };
    return {Finite(at(t)), SlopeAt(at, t, DerivativeStep(t)),
            numeric::SecondDeriv(at, t, SecondDerivativeStep(t))};
}

PlaneState Polar(double t, const Jet& r, const Jet& theta, double k) {
    const double w = k * theta.first;
    const double w_rate = k * theta.second;
    return {t,
            {r.value, theta.value},
            {r.first, Finite(r.value * w)},
            {Finite(r.second - r.value * w * w), Finite(r.value * w_rate + 2 * r.first * w)}};
}

}  // namespace

PlaneState PlaneAt(const PlaneMotion& motion, double t, const double& angle_factor) {
    const Jet first = JetOf(motion.first, t, angle_factor);
    const Jet second = JetOf(motion.second, t, angle_factor);
    if (motion.way == Way::Polar)
        return Polar(t, first, second, angle_factor);
    return {t, {first.value, second.value}, {first.first, second.first}, {first.second, second.second}};
}

Trajectory SamplePlane(const PlaneMotion& motion, double t0, double t1, const double& angle_factor) {
    RequireSpan(t0, t1);
    MotionFormula first(motion.first, 1, angle_factor);
    MotionFormula second(motion.second, 1, angle_factor);
    const auto [from, to] = std::minmax(t0, t1);
    const std::vector<double> times = EqualSteps(from, to, kGraphSteps);
    Trajectory path = {first.AtAll({times}), second.AtAll({times})};
    if (motion.way == Way::Polar) {
        for (std::size_t k = 0; k < times.size(); ++k) {
            const double r = path.x[k];
            const double angle = angle_factor * path.y[k];
            path.x[k] = Finite(r * std::cos(angle));
            path.y[k] = Finite(r * std::sin(angle));
        }
    }
    return path;
}

}  // namespace tavrelo::mechanics::kinematics
