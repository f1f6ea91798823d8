#include "mechanics/forces/substitution.h"

#include <cmath>

#include "numeric/angles.h"

namespace tavrelo::mechanics::forces {
namespace {

constexpr double kEquilibriumTolerance = 0.001;

bool IsKnown(const ForceRow& force) {
    return text::IsNum(force[XComponent]) && text::IsNum(force[YComponent]);
}

}  // namespace

std::optional<ComponentSums> SumComponents(const ForceTable& table, ComponentSums start) {
    for (const ForceRow& force : table) {
        if (!IsKnown(force))
            return {};
        start.x = numeric::CheckedAdd(start.x, force[XComponent].Number());
        start.y = numeric::CheckedAdd(start.y, force[YComponent].Number());
    }
    return start;
}

bool InEquilibrium(const std::optional<ComponentSums>& sums) {
    return sums && std::abs(sums->x) < kEquilibriumTolerance && std::abs(sums->y) < kEquilibriumTolerance;
}

void MarkSolved(ForceRow& force, int decimals) {
    if (!IsKnown(force))
        return;
    const double x = force[XComponent].Number();
    const double y = force[YComponent].Number();
    const numeric::ClockReading clock = numeric::ClockOf(x, y);
    force[Magnitude] = numeric::Finite(numeric::Hypot(x, y));
    force[Direction] = numeric::AngleOf(x, y);
    force[Hour] = clock.hour;
    force[ClockAngle] = clock.angle;
    force[XUnknown] = "";
    force[YUnknown] = "";
    force[XText] = text::RoundedText(x, decimals);
    force[YText] = text::RoundedText(y, decimals);
    force[DrawDirection] = {};
    if (force[Colour] == text::Value(kUnknown))
        force[Colour] = kSolved;
}

void MarkSolved(ForceTable& table, int decimals) {
    for (ForceRow& force : table)
        MarkSolved(force, decimals);
}

}  // namespace tavrelo::mechanics::forces
