#pragma once

#include <cstddef>
#include <string>

namespace tavrelo::notation {

enum class AngleFunction { None, Cos, Sen };

/// An unknown of a component: F1 (a magnitude), cos A (of a known magnitude at an unknown direction) or
/// F1 cos A (both unknown). The part that is not there is empty; no unknown at all has both parts empty.
struct UnknownTerm {
    std::string magnitude = {};
    AngleFunction function = AngleFunction::None;
    std::string angle = {};

    bool HasAngle() const { return function != AngleFunction::None; }
    bool HasBoth() const { return HasAngle() && !magnitude.empty(); }
    bool IsNone() const { return !HasAngle() && magnitude.empty(); }
    bool IsCos() const { return function == AngleFunction::Cos; }

    /// By the letters of the names; see SameUnknown.
    friend bool operator==(const UnknownTerm&, const UnknownTerm&) = default;
};

/// Whether two terms are the same unknown, part by part (see text::SameSymbol).
bool SameUnknown(const UnknownTerm& a, const UnknownTerm& b);

/// The word of an angle function as equations write it: "cos", "sen" or nothing.
const char* NameOf(AngleFunction function);

/// "F1", "cos A" or "F1 cos A", with the names as they are; the empty text for no unknown.
std::string TextOf(const UnknownTerm& unknown);
/// Characters of that text: some rules tell their cases by it.
std::size_t LengthOf(const UnknownTerm& unknown);

}  // namespace tavrelo::notation
