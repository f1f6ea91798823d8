#pragma once

#include <optional>
#include <string_view>

namespace tavrelo::notation {

/// A quantity of a point told by the same quantity of another one: "t3+5" adds 5 to that of point 3, "2*x3"
/// is its double. One of the two fields is set: "t3" adds 0, "-t3" is the factor -1.
struct CellReference {
    int point = 0;
    std::optional<double> addend;
    std::optional<double> factor;

    friend bool operator==(const CellReference&, const CellReference&) = default;
};

/// Reads "t3", "-t3", "t3+5", "t3-5", "2*t3", "-2*t3", "t3/2" or "-t3/2": a letter, which is not looked at,
/// one digit, and one number. Nothing for any other text. Fails with DivisionByZero on "t3/0" and with
/// Overflow past the range of a double.
std::optional<CellReference> ParseCellReference(std::string_view text);

}  // namespace tavrelo::notation
