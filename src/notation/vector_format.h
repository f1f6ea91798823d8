#pragma once

#include <optional>
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
inline constexpr char kHorizontalLetter = 'h';
inline constexpr char kVerticalLetter = 'v';

/// A vector text cut in pieces. Every piece is trimmed; `first` is empty in the formats without a separator.
struct VectorFormat {
    std::string first;
    std::string second;
    bool not_colon = true;  // false: the text ended in ":", the force arrives at its point
    std::string_view code;  // one of those above; empty without a format
    std::string msg;        // why the text has no format; empty otherwise
};
VectorFormat VectorFormatOf(std::string_view text);

/// The part before the comma of the quadrant formats: "p30x".
struct QuadrantMarks {
    std::string_view quadrant;  // one letter of p, s, t, c
    std::string angle;          // what stands between, trimmed; not examined
    std::string_view axis;      // x or y
};
/// Nothing where one of the letters is missing, or all between them. The letters are pieces of `first`.
std::optional<QuadrantMarks> ReadQuadrantMarks(std::string_view first);

/// A known component behind the comma: "12h".
struct LetteredComponent {
    std::string number;  // what stands before the letter, trimmed; not examined
    char letter;         // h or v
};
/// Nothing where no such letter ends the part.
std::optional<LetteredComponent> ReadLetteredComponent(std::string_view second);

}  // namespace tavrelo::notation
