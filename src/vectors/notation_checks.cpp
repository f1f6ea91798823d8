#include "vectors/notation_checks.h"

#include <cmath>

namespace tavrelo::vectors {

std::optional<Refusal> CheckAngles(const numeric::Value& clock_angle, const numeric::Value& direction) {
    constexpr double kHalfTurn = 180;
    if (clock_angle.HoldsNumber() && clock_angle.Number() < 0)
        return Refusal{"Ángulo negativo."};
    if (direction.HoldsNumber() && std::abs(direction.Number()) > kHalfTurn)
        return Refusal{"La dirección debe estar entre -180° y 180°."};
    return {};
}

}  // namespace tavrelo::vectors
