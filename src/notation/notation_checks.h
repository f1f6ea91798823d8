#pragma once

#include <optional>

#include "numeric/angles.h"
#include "text/refusal.h"

namespace tavrelo::notation {

/// What both parsers answer to a text, or a number in it, that cannot be read or computed.
inline constexpr const char* kUnreadableVector = "Error en la especificación del vector.";
/// What both answer when a part beside a separator is missing.
inline constexpr const char* kMissingPart = "Falta un elemento en el formato.";
inline constexpr const char* kMissingX = "Falta el valor de la componente X.";
inline constexpr const char* kMissingY = "Falta el valor de la componente Y.";
inline constexpr const char* kMissingAngle = "Falta el valor del ángulo.";

/// Directions of the axes in degrees.
inline constexpr double kRightward = 0;
inline constexpr double kUpward = 90;
inline constexpr double kLeftward = 180;
inline constexpr double kDownward = -90;

/// Refuses a clock angle below 0, then a direction outside -180 to 180; what is unknown passes.
std::optional<text::Refusal> CheckAngles(const std::optional<numeric::ClockReading>& clock,
                                         std::optional<double> direction);

}  // namespace tavrelo::notation
