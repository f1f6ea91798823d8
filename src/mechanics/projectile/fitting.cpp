#include "mechanics/projectile/fitting.h"

#include <cmath>

#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

constexpr double kHalfTurn = 180.0;

std::string LaunchLine(const PolarVelocity& velocity, int decimals) {
    return "v!0 = " + Shown(velocity.speed, decimals) + ", ;q!0 = " + Shown(velocity.angle, decimals) + "°";
}

Worked Offer(int mover, const Start& start, const PolarVelocity& velocity, int decimals) {
    return {{LaunchLine(velocity, decimals)}, mover, {LaunchOf(start, velocity)}, kPlantQuestion};
}

bool ShareX(const std::array<numeric::Point, 3>& places) {
    return IsZero(places[1].x - places[0].x) || IsZero(places[2].x - places[0].x) ||
           IsZero(places[2].x - places[1].x);
}

}  // namespace

WorkedOrRefusal LaunchThrough(int mover, double t, const std::array<numeric::Point, 3>& places,
                              int decimals) {
    if (ShareX(places))
        return text::Refusal{kNoSolution};
    const auto& [first, second, third] = places;
    const double chord = (second.y - first.y) / (second.x - first.x);
    const double a = Finite(((third.y - first.y) / (third.x - first.x) - chord) / (third.x - second.x));
    if (!(a < 0.0))
        return text::Refusal{kNoSolution};
    const double slope = chord - a * (second.x - first.x);
    const double vx = std::copysign(std::sqrt(kHalfGravity / -a), third.x - first.x);
    return Offer(mover, {t, first.x, first.y}, Polar(Velocity{Finite(vx), Finite(slope * vx)}), decimals);
}

WorkedOrRefusal LaunchWithRangeRatio(int mover, const Start& start, const std::optional<double>& speed,
                                     double ratio, int decimals) {
    constexpr double kFour = 4.0;  // R = 2 vx vy / g = C vy^2 / (2 g)
    if (ratio == 0.0 || (speed && !(*speed > 0.0)))
        return text::Refusal{kInvalidData};
    const double acute = numeric::ArcTanD(Finite(kFour / ratio));
    const double angle = ratio < 0.0 ? numeric::NormAngle(acute + kHalfTurn) : acute;
    if (speed)
        return Offer(mover, start, {*speed, angle}, decimals);
    return Worked{{";q!0 = " + Shown(angle, decimals) + "°"},
                  mover,
                  {{SpeedMode::Polar, start, std::nullopt, angle}},
                  kPlantQuestion};
}

WorkedOrRefusal LaunchWithFlight(int mover, const Start& start, double time, double range, int decimals) {
    if (!(time > 0.0))
        return text::Refusal{kInvalidData};
    return Offer(mover, start, Polar(Velocity{Finite(range / time), Finite(kHalfGravity * time)}), decimals);
}

}  // namespace tavrelo::mechanics::projectile
