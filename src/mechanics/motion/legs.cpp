#include "mechanics/motion/legs.h"

#include <optional>
#include <string>

#include "mechanics/motion/times.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::motion {

namespace {

using text::Refusal;

Refusal NotPlanted(int mover, int stretch) {
    return {"No tengo la ecuación x = x(t) del móvil " + std::to_string(mover) + ", tramo " +
            std::to_string(stretch)};
}

}  // namespace

double RequiredTimeOf(const Problem& problem, const points::PointPlace& place) {
    const auto time = TimeOf(problem, place.mover, place.point);
    if (!time)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "time of a point");
    return *time;
}

std::variant<Refusal, std::vector<Leg>> LegsBetween(const Problem& problem, const points::PointPlace& first,
                                                    const points::PointPlace& last) {
    if (first.mover != last.mover)
        return Refusal{std::string(kSpansMovers)};
    const double end = RequiredTimeOf(problem, last);
    double from = RequiredTimeOf(problem, first);
    std::vector<Leg> legs;
    for (int stretch = first.stretch; stretch <= last.stretch; ++stretch) {
        const int shared = problem.configuration.StretchAt(first.mover, stretch).last;
        const double to =
            stretch == last.stretch ? end : RequiredTimeOf(problem, {first.mover, stretch, shared});
        if (to < from)
            throw numeric::RuntimeFailure(numeric::FailureCode::OutOfDomain, "times out of order");
        const Equations& equations = problem.EquationsOf(first.mover, stretch);
        if (to > from && !equations.IsComplete())
            return NotPlanted(first.mover, stretch);
        if (to > from)
            legs.push_back({first.mover, stretch, from, to, equations.Expanded()});
        from = to;
    }
    if (from != end)
        throw numeric::RuntimeFailure(numeric::FailureCode::OutOfDomain, "points out of order");
    return legs;
}

std::optional<double> TurningTime(const Leg& leg) {
    if (leg.motion.a == 0)
        return std::nullopt;
    const double time = (0.0 - leg.motion.v0) / leg.motion.a;  // infinite for a vanishing acceleration
    if (time <= leg.from || time >= leg.to)
        return std::nullopt;
    return time;
}

}  // namespace tavrelo::mechanics::motion
