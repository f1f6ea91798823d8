// Rows of the table of forces of bodies.

#pragma once

#include <string_view>
#include <variant>

#include "mechanics/rigid/body_force.h"

namespace tavrelo::mechanics::rigid {

inline constexpr int kDecimals = 3;

/// What the user types at the point (x, y) of a body.
inline BodyForce RowAt(double x, double y, std::string_view text, int body = 1) {
    return std::get<ReadForce>(ReadBodyForce(body, {"P", x, y}, text, kDecimals)).force;
}

}  // namespace tavrelo::mechanics::rigid
