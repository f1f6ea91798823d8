#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "notation/force_record.h"
#include "text/refusal.h"
#include "text/value.h"

namespace tavrelo::mechanics::forces {

/// Columns of the table of forces. Element k of a force record stands in column k + 1; what they hold is told
/// there.
enum ForceCol : std::size_t {
    Magnitude = 1,
    Direction,
    XComponent,
    YComponent,
    Hour,
    ClockAngle,
    XCoefficient,
    XUnknown,
    YCoefficient,
    YUnknown,
    XText,
    YText,
    DrawDirection,  // degrees, only while the direction is unknown
    LeavesPoint,    // vectors::kLeaves or vectors::kArrives
    Colour,
    GivenText,
    SymbolPart,
    SymbolFactor,
    MagnitudeText,
    FormatCode,
    ShownMagnitude,
    StartX,  // where the arrow starts on the canvas, pixels from its left, single precision
    StartY,  // pixels from its bottom, growing upward
    kForceColumnsEnd,
};

/// Arrow colours: black, red and magenta.
inline constexpr int kKnown = notation::kKnownColour;
inline constexpr int kUnknown = notation::kUnknownColour;
inline constexpr int kSolved = 16711935;

/// One force; indexed by ForceCol, so that index 0 is never used.
using ForceRow = std::array<text::Value, kForceColumnsEnd>;
using ForceTable = std::vector<ForceRow>;

/// The columns that one of the two sums of forces reads.
struct ComponentColumns {
    ForceCol component;
    ForceCol coefficient;
    ForceCol unknown;
    ForceCol text;
};
inline constexpr ComponentColumns kXColumns = {XComponent, XCoefficient, XUnknown, XText};
inline constexpr ComponentColumns kYColumns = {YComponent, YCoefficient, YUnknown, YText};

/// The row of a parsed force; its start on the canvas is left empty.
ForceRow RowOf(const notation::ForceRecord& record);

/// Whether the force has no direction to be drawn in: an unknown one, or unknown components.
bool DirectionIsUnknown(const ForceRow& row);

/// Direction in degrees at which an unknown one is drawn when nobody is asked.
inline constexpr double kDefaultDrawDirection = 45;

/// The rows of a list of texts, unknown directions drawn at the default one; the refusal of the first text
/// that is no force.
std::variant<text::Refusal, ForceTable> ForcesOf(std::span<const std::string> texts, int decimals);

}  // namespace tavrelo::mechanics::forces
