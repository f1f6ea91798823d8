#pragma once

#include <string>
#include <string_view>

namespace tavrelo::notation {

/// The codes of the ways to write a vector. A, D: degrees; c, e: quadrant and axis letters.
inline constexpr std::string_view kQuadrantMagnitude = "cAe,M";  // p30x,12
inline constexpr std::string_view kQuadrantComponent = "cAe,C";  // p30x,12h
inline constexpr std::string_view kComponents = "Fx,Fy";         // 23,-45
inline constexpr std::string_view kPolar = "M<D";                // 230<-34 or 230;-34
inline constexpr std::string_view kHorizontal = "hCx";           // h-55
inline constexpr std::string_view kVertical = "vCy";             // v0.24
inline constexpr std::string_view kUnit = "uD";                  // u156

/// Last letters of a known component in the format "cAe,C".
inline constexpr std::string_view kHorizontalLetter = "h";
inline constexpr std::string_view kVerticalLetter = "v";

/// A vector text cut in pieces. Every piece is trimmed; `head` and `tail` are the first and the last
/// character of `first` in the formats with a comma, and empty in the others.
struct VectorFormat {
    std::string first;
    std::string second;
    std::string head;
    std::string tail;
    bool not_colon = true;  // false: the text ended in ":", the force arrives at its point
    std::string code;
    std::string msg;  // why the text has no format; empty otherwise
};
VectorFormat VectorFormatOf(std::string_view text);

/// Whether the part before a comma is a quadrant letter, an angle and an axis letter: "p30x". The angle is
/// not examined.
bool HasQuadrantMarks(std::string_view first);
/// What stands between the quadrant and the axis letter, trimmed.
std::string AngleBetweenMarks(std::string_view first);
/// The text without the letter of its component, trimmed: "12h" is "12".
std::string WithoutLastLetter(std::string_view second);

}  // namespace tavrelo::notation
