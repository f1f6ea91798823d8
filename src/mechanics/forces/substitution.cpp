#include "mechanics/forces/substitution.h"

#include "numeric/angles.h"

namespace tavrelo::mechanics::forces {
namespace {

bool IsKnown(const ForceRow& force) {
    return text::IsNum(force[XComponent]) && text::IsNum(force[YComponent]);
}

}  // namespace

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

}  // namespace tavrelo::mechanics::forces
