#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

#include "text/refusal.h"

namespace tavrelo::notation {

/// What can be given of one interval of uniformly accelerated motion: the acceleration, and of time, position
/// and speed the values at both ends and their change. In the order in which a report writes them.
enum class IntervalDatum { a, ti, tf, dt, xi, xf, dx, vi, vf, dv };
inline constexpr std::size_t kIntervalData = 10;

/// The data of an interval, each given or absent.
class IntervalData {
  public:
    std::optional<double>& operator[](IntervalDatum datum) {
        return m_values[static_cast<std::size_t>(datum)];
    }
    const std::optional<double>& operator[](IntervalDatum datum) const {
        return m_values[static_cast<std::size_t>(datum)];
    }
    bool Has(IntervalDatum datum) const { return (*this)[datum].has_value(); }

    friend bool operator==(const IntervalData&, const IntervalData&) = default;

  private:
    std::array<std::optional<double>, kIntervalData> m_values;
};

inline constexpr std::string_view kWrongNumberOfData = "El número de datos debe ser 3 ó 4.";

/// Reads a line such as "a = 3, xi = 12, xf = 23, dt = 6". Of a name only the letters that pick the datum
/// count
/// ("a", "t", "x" or "v" with "i" or "f", "d" with "t", "x" or "v"); a piece with another name, or without
/// "=", gives nothing, and of a name given twice the last value stands. Fails with TypeMismatch where what
/// stands behind the "=" of a known name is no number, and with Overflow past the range of a double.
std::variant<text::Refusal, IntervalData> ReadIntervalLine(std::string_view line);

}  // namespace tavrelo::notation
