#pragma once

#include <array>
#include <cstddef>

#include "notation/force_record.h"
#include "text/value.h"

namespace tavrelo::mechanics::forces {

/// Columns of a row of the table of forces of bodies.
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
    LeavesPoint,    // kLeaves or kArrives
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
inline constexpr int kKnown = 0;
inline constexpr int kUnknown = 255;
inline constexpr int kSolved = 16711935;

/// Values of LeavesPoint.
inline constexpr int kLeaves = 1;
inline constexpr int kArrives = 0;

/// One force; indexed by ForceCol, so that index 0 is never used.
using ForceRow = std::array<text::Value, kForceColumnsEnd>;

/// The columns that one of the two sums of forces reads.
struct ComponentColumns {
    ForceCol component;
    ForceCol coefficient;
    ForceCol unknown;
    ForceCol text;
};
inline constexpr ComponentColumns kXColumns = {XComponent, XCoefficient, XUnknown, XText};
inline constexpr ComponentColumns kYColumns = {YComponent, YCoefficient, YUnknown, YText};

/// The row of a force that was read; its start on the canvas is left empty.
ForceRow RowOf(const notation::ForceRecord& record);

/// Direction in degrees at which an unknown one is drawn when nobody is asked.
inline constexpr double kDefaultDrawDirection = 45;

}  // namespace tavrelo::mechanics::forces
