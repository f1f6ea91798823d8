#pragma once

#include <array>
#include <optional>

#include "mechanics/projectile/worked.h"
#include "numeric/point.h"

namespace tavrelo::mechanics::projectile {

/// The launch from the first of three places on a parabola, at the time `t` of that point; it flies from the
/// first towards the third. Refused when no parabola that opens downward passes through them. Fails with
/// Overflow.
WorkedOrRefusal LaunchThrough(int mover, double t, const std::array<numeric::Point, 3>& places, int decimals);

/// The launch whose range is C times its greatest height: tan q = 4/C, thrown upward. Without `speed` the
/// equations keep v0 as a parameter. Refused for C = 0 and a speed that is not above 0.
WorkedOrRefusal LaunchWithRangeRatio(int mover, const Start& start, const std::optional<double>& speed,
                                     double ratio, int decimals);

/// The launch with a time of flight (above 0) and a range, back to its own level. Fails with Overflow.
WorkedOrRefusal LaunchWithFlight(int mover, const Start& start, double time, double range, int decimals);

}  // namespace tavrelo::mechanics::projectile
