#pragma once

#include <array>
#include <cstddef>

#include "text/value.h"

namespace tavrelo::notation {

/// Elements of a force record, counted from 0.
enum ForceElement : std::size_t {
    ForceMagnitude,  // number, or the symbol
    ForceDirection,  // degrees, or the symbol
    ForceX,          // number, or the empty text of an unknown
    ForceY,
    ForceHour,  // clock reading of a known direction; empty otherwise
    ForceClockAngle,
    ForceXCoefficient,  // of the unknown in the component
    ForceXUnknown,      // "F1", "cos A" or "F1 cos A"; the empty text for a known component
    ForceYCoefficient,
    ForceYUnknown,
    ForceXText,  // the component for showing
    ForceYText,
    ForceDrawDirection,  // degrees at which an unknown direction is drawn; not set by the parser
    ForceLeavesPoint,    // kLeaves or kArrives
    ForceColour,
    ForceGivenText,   // as typed
    ForceSymbolPart,  // symbol of the magnitude or component, without its factor
    ForceSymbolFactor,
    ForceMagnitudeText,  // in capitals but for a leading "f"
    ForceFormatCode,
    ForceShownMagnitude,  // picture markup
    kForceElements,
};

using ForceRecord = std::array<text::Value, kForceElements>;

/// Values of ForceLeavesPoint.
inline constexpr int kLeaves = 1;
inline constexpr int kArrives = 0;

/// Arrow colours (red + 256 green + 65536 blue): black for a known force, red for one with unknown data.
inline constexpr int kKnownColour = 0;
inline constexpr int kUnknownColour = 255;

}  // namespace tavrelo::notation
