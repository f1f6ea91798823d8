#include "notation/notation_checks.h"

#include <cmath>

namespace tavrelo::notation {

std::optional<text::Refusal> CheckAngles(const text::Value& clock_angle, const text::Value& direction) {
    constexpr double kHalfTurn = 180;
    if (clock_angle.HoldsNumber() && clock_angle.Number() < 0)
        return text::Refusal{"Ángulo negativo."};
    if (direction.HoldsNumber() && std::abs(direction.Number()) > kHalfTurn)
        return text::Refusal{"La dirección debe estar entre -180° y 180°."};
    return {};
}

}  // namespace tavrelo::notation
