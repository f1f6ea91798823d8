#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "mechanics/forces/force_table.h"

namespace tavrelo::mechanics::forces {

enum class AngleFunction { None, Cos, Sen };

/// An unknown as a component writes it: "F1" (unknown magnitude), "cos A" (unknown direction) or "F1 cos A"
/// (both). In "F1" the name is the magnitude; in "cos A" the magnitude is empty.
struct UnknownTerm {
    std::string magnitude;
    AngleFunction function = AngleFunction::None;
    std::string angle;

    bool HasAngle() const { return function != AngleFunction::None; }
    bool HasBoth() const { return HasAngle() && !magnitude.empty(); }
};
UnknownTerm ReadUnknown(std::string_view text);

/// Whether two texts are the same unknown, part by part (see vectors::SameSymbol).
bool SameUnknown(std::string_view a, std::string_view b);

/// One sum of forces: known part and at most two different unknowns in the order in which they appear.
struct ForceSum {
    double known = 0;
    std::string first;
    double first_coef = 0;
    std::string second;
    double second_coef = 0;
    int unknowns = 0;
};

struct ForceSums {
    ForceSum x;
    ForceSum y;
};

/// Sums the components of all forces; refused when a sum holds a third unknown.
std::variant<text::Refusal, ForceSums> CollectSums(const ForceTable& table);

/// What the solver says when the forces hold more unknowns than two equations can find.
inline constexpr const char* kTooManyUnknowns = "El número de incógnitas excede al número de ecuaciones.";

/// Number of characters of an unknown's text; the solver tells its cases by these lengths.
std::size_t LengthOf(std::string_view unknown);

}  // namespace tavrelo::mechanics::forces
