#include "mechanics/projectile/worked.h"

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {

PolarVelocity Polar(double speed, double angle) {
    constexpr double kHalfTurn = 180.0;
    numeric::Finite(speed);
    return speed < 0.0 ? PolarVelocity{-speed, numeric::NormAngle(angle + kHalfTurn)}
                       : PolarVelocity{speed, numeric::NormAngle(angle)};
}

PolarVelocity Polar(const Velocity& velocity) { return {SpeedOf(velocity), DirectionOf(velocity)}; }

Launch LaunchOf(const Start& start, const PolarVelocity& velocity) {
    return {SpeedMode::Polar, start, velocity.speed, velocity.angle};
}

std::string Shown(double number, int decimals) { return text::NumText(number, decimals).Text(); }

}  // namespace tavrelo::mechanics::projectile
