#pragma once

#include <string_view>
#include <variant>

#include "numeric/angles.h"
#include "text/refusal.h"

namespace tavrelo::notation {

/// A vector of numbers.
struct VectorRecord {
    double magnitude;
    double direction;  // degrees
    double x, y;
    numeric::ClockReading clock;  // of the direction; in the quadrant formats as typed

    friend bool operator==(const VectorRecord&, const VectorRecord&) = default;
};

/// What a text like "12,5h" gives: a known component whose direction is missing. It is no refusal, but
/// nothing can be reckoned with it.
struct NoDirection {
    friend bool operator==(const NoDirection&, const NoDirection&) = default;
};

using VectorReading = std::variant<text::Refusal, NoDirection, VectorRecord>;

/// Reads a vector of numbers. Never throws: what cannot be read or computed is a refusal.
VectorReading ParseVector(std::string_view text);

}  // namespace tavrelo::notation
