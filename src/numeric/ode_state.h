#pragma once

#include <array>
#include <cstddef>

#include "numeric/checked.h"

namespace tavrelo::numeric {

/// Highest order of the differential equations.
inline constexpr std::size_t kHighestOrder = 2;

/// The function value y[0] and, at order 2, its derivative y[1]. At order 1 the second element is not used.
using OdeState = std::array<double, kHighestOrder>;

enum class OdeOutcome { Done, TooManySteps };

/// Steps after which ODEInt gives up.
inline constexpr int kMostOdeSteps = 1000;

struct ControlledStep {
    double done;  // length of the step that was accurate enough
    double next;  // length to try next
};

/// The order as a number of components; fails with SubscriptRange outside 1 to kHighestOrder.
inline std::size_t ComponentsOf(int order) {
    if (order < 1 || order > static_cast<int>(kHighestOrder)) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "order of a differential equation");
    }
    return static_cast<std::size_t>(order);
}

}  // namespace tavrelo::numeric
