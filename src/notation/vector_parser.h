#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <variant>

#include "text/refusal.h"
#include "text/value.h"

namespace tavrelo::notation {

/// Elements of a vector result, counted from 0.
enum VectorElement : std::size_t {
    VectorMagnitude,
    VectorDirection,  // degrees
    VectorX,
    VectorY,
    VectorHour,  // clock reading; as typed in the quadrant formats
    VectorClockAngle,
    kVectorElements,
};

/// Numbers; all six are empty for a text like "12,5h", a known component whose direction is missing.
using VectorRecord = std::array<text::Value, kVectorElements>;

/// Reads a vector of numbers. Never throws: what cannot be read or computed is a refusal.
std::variant<text::Refusal, VectorRecord> ParseVector(std::string_view text);

}  // namespace tavrelo::notation
