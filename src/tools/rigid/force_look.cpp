#include "tools/rigid/force_look.h"

#include "notation/vector_format.h"
#include "text/number_text.h"

namespace tavrelo::tools::rigid {

ForceLook LookOf(const std::optional<notation::ForceRecord>& written) {
    if (!written)
        return {};
    return {.x_text = written->x_text,
            .y_text = written->y_text,
            .label = written->label,
            .leaves = written->leaves,
            .by_components = written->code == notation::kComponents,
            .clock = written->clock,
            .asked_direction = {}};
}

ForceLook SolvedLook(ForceLook look, const mechanics::rigid::BodyForce& force, int decimals) {
    if (!force.force || !force.force->HasComponents())
        return look;
    const double x = *force.force->x.number;
    const double y = *force.force->y.number;
    look.x_text = text::RoundedText(x, decimals);
    look.y_text = text::RoundedText(y, decimals);
    look.clock = numeric::ClockOf(x, y);
    look.asked_direction = {};
    return look;
}

bool NeedsDirection(const mechanics::rigid::BodyForce& force, const ForceLook& look) {
    return force.force && force.force->x.unknown.HasAngle() && !look.asked_direction;
}

}  // namespace tavrelo::tools::rigid
