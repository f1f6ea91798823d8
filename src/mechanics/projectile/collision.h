#pragma once

#include <optional>

#include "mechanics/projectile/worked.h"

namespace tavrelo::mechanics::projectile {

/// The launch of mover 2, of which the speed, the angle or both are unknown, that makes it meet mover 1. Seen
/// from mover 1 the motion of mover 2 is uniform, so with the place (p, q) of mover 1 at the launch of mover
/// 2, its velocity (u, w) there and the time D until they meet,
///   V0 cos q = p / D + u,  V0 sin q = q / D + w.
/// With both unknown the time of the meeting must be given; with one it may be given, and then has to agree
/// with a solution to the last decimal shown. Fails with Overflow.
WorkedOrRefusal CollideProjectiles(const Equations& first, const Equations& second,
                                   const std::optional<double>& meeting_time, int decimals);

}  // namespace tavrelo::mechanics::projectile
