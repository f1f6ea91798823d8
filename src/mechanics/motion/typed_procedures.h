#pragma once

#include <string_view>

#include "mechanics/motion/procedures.h"

namespace tavrelo::mechanics::motion {

/// A procedure that works on the text typed in its box instead of clicks: three points, the interval, the
/// relations of two movers, the systems and the quadratic. Any other changes nothing. Fails with
/// RuntimeFailure where no refusal is named.
Step RunTyped(const Problem& problem, Procedure procedure, std::string_view typed, int decimals);

}  // namespace tavrelo::mechanics::motion
