#include "mechanics/motion/distance.h"

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "mechanics/motion/legs.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

namespace {

double Displaced(const Motion& motion, double from, double to) {
    return std::abs(numeric::CheckedSubtract(motion.PositionAt(to), motion.PositionAt(from)));
}

double Walked(const Leg& leg) {
    if (const auto turn = TurningTime(leg))
        return Displaced(leg.motion, leg.from, *turn) + Displaced(leg.motion, *turn, leg.to);
    return Displaced(leg.motion, leg.from, leg.to);
}

}  // namespace

Step WalkedDistance(const Problem& problem, const points::PointPlace& first, const points::PointPlace& second,
                    int decimals) {
    if (first.mover != second.mover)
        return text::Refusal{std::string(kSpansMovers)};
    const bool in_order = RequiredTimeOf(problem, first) <= RequiredTimeOf(problem, second);
    const points::PointPlace& start = in_order ? first : second;
    const points::PointPlace& end = in_order ? second : first;
    const auto legs = LegsBetween(problem, start, end);
    if (const auto* refusal = std::get_if<text::Refusal>(&legs))
        return *refusal;
    double distance = 0;
    for (const Leg& leg : std::get<std::vector<Leg>>(legs))
        distance = numeric::CheckedAdd(distance, Walked(leg));

    const auto shown = [decimals](double number) { return text::NumText(number, decimals).Text(); };
    return Outcome{problem,
                   {WriteLines{{"Calcular distancia recorrida.",
                                "Móvil " + std::to_string(start.mover) +
                                    ", de t = " + shown(RequiredTimeOf(problem, start)) +
                                    " a t = " + shown(RequiredTimeOf(problem, end)) + ":",
                                "d = " + shown(distance)}}}};
}

}  // namespace tavrelo::mechanics::motion
