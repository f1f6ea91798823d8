#include "mechanics/motion/interval_cases.h"

#include "numeric/checked.h"
#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion {
namespace {

using numeric::CheckedDivide;

constexpr const char* kNoAcceleration = "Esta rutina no se aplica cuando la aceleración es cero.";
constexpr const char* kNoDuration = "Estás poniendo dt = 0.";
constexpr const char* kNoSpeedChange = "Estás poniendo dv = 0.";
constexpr const char* kSameInstant = "No podemos tener tf = ti. Correspondería a dx = 0 y dv = 0.";
constexpr const char* kUniform = "Datos no aplicables al movimiento uniforme.";
constexpr const char* kConstantSpeed = "La velocidad es constante, igual a la inicial.";
constexpr const char* kSpeedCannotChange = "La velocidad no puede cambiar en el movimiento uniforme.";
constexpr const char* kFactorOne =
    "El factor \"C\" no puede ser igual a 1. Correspondería a dt = 0 ó dx = 0.";
constexpr const char* kNoSolution = "No hay solución.";

Intervals Refused(const char* text) { return text::Refusal{text}; }

/// The moment of a speed; the motion is accelerated.
double TimeAt(const Motion& motion, double v) { return CheckedDivide(v - motion.v0, motion.a); }

Interval BetweenSpeeds(const Motion& motion, double vi, double vf) {
    return {TimeAt(motion, vi), TimeAt(motion, vf)};
}

/// The intervals of each root; none is "no solution".
template <typename ToInterval>
Intervals OfRoots(const numeric::RealRootList& roots, const ToInterval& to_interval) {
    if (roots.empty())
        return Refused(kNoSolution);
    std::vector<Interval> intervals;
    for (const double root : roots)
        intervals.push_back(to_interval(root));
    return intervals;
}

}  // namespace

Intervals IntervalOfDtDx(const Motion& motion, double dt, double dx) {
    if (motion.a == 0.0)
        return Refused(kNoAcceleration);
    if (dt == 0.0)
        return Refused(kNoDuration);
    const double vi = dx / dt - 0.5 * motion.a * dt;
    return std::vector{BetweenSpeeds(motion, vi, vi + motion.a * dt)};
}

Intervals IntervalOfDxDv(const Motion& motion, double dx, double dv) {
    if (motion.a == 0.0)
        return Refused(kNoAcceleration);
    if (dv == 0.0)
        return Refused(kNoSpeedChange);
    const double vi = CheckedDivide(dx * motion.a, dv) - 0.5 * dv;
    return std::vector{BetweenSpeeds(motion, vi, vi + dv)};
}

Intervals IntervalOfDtPositionFactor(const Motion& motion, double dt, double c) {
    if (dt == 0.0)
        return Refused(kSameInstant);
    const double rest = 1.0 - c;
    const auto roots = numeric::RealRoots(0.5 * motion.a * rest, motion.a * dt + motion.v0 * rest,
                                          0.5 * motion.a * dt * dt + motion.v0 * dt + motion.x0 * rest);
    return OfRoots(roots, [&](double ti) { return Interval{ti, ti + dt}; });
}

Intervals IntervalOfDtSpeedFactor(const Motion& motion, double dt, double c) {
    if (motion.a == 0.0)
        return Refused(kUniform);
    if (c == 1.0)
        return Refused(kConstantSpeed);
    const double ti = CheckedDivide(-motion.v0, motion.a) + CheckedDivide(dt, c - 1.0);
    return std::vector{Interval{ti, ti + dt}};
}

Intervals IntervalOfDxTimeFactor(const Motion& motion, double dx, double c) {
    if (c == 1.0)
        return Refused(kFactorOne);
    const auto roots = numeric::RealRoots(0.5 * motion.a * (c * c - 1.0), motion.v0 * (c - 1.0), -dx);
    return OfRoots(roots, [&](double ti) { return Interval{ti, c * ti}; });
}

Intervals IntervalOfDxSpeedFactor(const Motion& motion, double dx, double c) {
    if (motion.a == 0.0)
        return Refused(kUniform);
    if (c == 1.0)
        return Refused(kFactorOne);
    if (c == -1.0)
        return Refused(kNoSolution);
    // The sum of the roots is 0: the positive one comes first.
    const auto speeds = numeric::RealRoots(1.0, 0.0, -CheckedDivide(2.0 * motion.a * dx, c * c - 1.0));
    return OfRoots(speeds, [&](double vi) { return BetweenSpeeds(motion, vi, c * vi); });
}

Intervals IntervalOfDvTimeFactor(const Motion& motion, double dv, double c) {
    if (motion.a == 0.0)
        return Refused(dv == 0.0 ? kUniform : kSpeedCannotChange);
    if (c == 1.0)
        return Refused(kFactorOne);
    const double ti = CheckedDivide(dv, motion.a * (c - 1.0));
    return std::vector{Interval{ti, c * ti}};
}

Intervals IntervalOfDvPositionFactor(const Motion& motion, double dv, double c) {
    if (motion.a == 0.0)
        return Refused(dv == 0.0 ? kUniform : kSpeedCannotChange);
    if (dv == 0.0)
        return Refused(kSameInstant);
    const double rest = 1.0 - c;
    const auto speeds = numeric::RealRoots(
        rest, 2.0 * dv, dv * dv + (2.0 * motion.a * motion.x0 - motion.v0 * motion.v0) * rest);
    return OfRoots(speeds, [&](double vi) { return BetweenSpeeds(motion, vi, vi + dv); });
}

}  // namespace tavrelo::mechanics::motion
