#include "notation/notation_checks.h"

#include <cmath>

namespace tavrelo::notation {

std::optional<text::Refusal> CheckAngles(const std::optional<numeric::ClockReading>& clock,
                                         std::optional<double> direction) {
    constexpr double kHalfTurn = 180;
    if (clock && clock->angle < 0)
        return text::Refusal{"Ángulo negativo."};
    if (direction && std::abs(*direction) > kHalfTurn)
        return text::Refusal{"La dirección debe estar entre -180° y 180°."};
    return {};
}

}  // namespace tavrelo::notation
