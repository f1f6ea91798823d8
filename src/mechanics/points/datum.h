#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "notation/cell_reference.h"
#include "text/refusal.h"
#include "text/value.h"

namespace tavrelo::mechanics::points {

/// What a cell says of its quantity.
struct NoDatum {
    friend bool operator==(const NoDatum&, const NoDatum&) = default;
};
/// A text that is neither a number nor a reference; it says nothing.
struct OtherText {
    friend bool operator==(const OtherText&, const OtherText&) = default;
};
/// An empty cell, a number, the same quantity of another point, or a text of no meaning.
using Datum = std::variant<NoDatum, double, notation::CellReference, OtherText>;

/// Reads a cell in which any of `letters` makes a text a reference ("t"; "xX"; "vV"). A malformed reference
/// is refused: "Error en el dato " and the text.
std::variant<text::Refusal, Datum> ReadDatum(const text::Value& stored, std::string_view letters);

/// The letters of the rows of a motion's table.
inline constexpr std::string_view kTimeLetters = "t";
inline constexpr std::string_view kPositionLetters = "xX";
inline constexpr std::string_view kSpeedLetters = "vV";

inline std::optional<double> NumberOf(const Datum& datum) {
    const double* number = std::get_if<double>(&datum);
    return number ? std::optional(*number) : std::nullopt;
}

}  // namespace tavrelo::mechanics::points
