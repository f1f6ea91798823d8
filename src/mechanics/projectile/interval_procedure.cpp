// Two clicks: the path between the times of two points, and its graph.

#include <algorithm>
#include <string>

#include "mechanics/projectile/crossing.h"
#include "mechanics/projectile/procedures.h"

namespace tavrelo::mechanics::projectile {
namespace {

constexpr const char* kTwoMovers = "Estás abarcando dos móviles.";
constexpr const char* kNoTime = "No tengo uno de los tiempos límites.";
constexpr const char* kNoEquations = "No tengo las ecuaciones del móvil ";
constexpr const char* kNoLength = "No pude calcular la distancia recorrida.";
constexpr const char* kMissingEquations = "Me faltan las ecuaciones de uno de los móviles.";

std::optional<double> TimeAt(const Problem& problem, const Place& place) {
    return problem.NumberAt(points::kLaunchTimeRow, problem.ColumnOf(place.mover, place.point));
}

/// The flight of a mover between the first and the last time that its points tell; nothing without two times.
std::optional<GraphPart> OwnPart(const Problem& problem, int mover) {
    std::vector<double> times;
    for (int point = 0; problem.HasPoint(mover, point); ++point)
        if (const auto time = TimeAt(problem, {mover, point}))
            times.push_back(*time);
    if (times.empty())
        return std::nullopt;
    const auto [first, last] = std::ranges::minmax(times);
    if (first == last)
        return std::nullopt;
    return GraphPart{mover, &problem.EquationsOf(mover).flight, first, last};
}

Event GraphEvent(const Problem& problem, const GraphPart& part, int decimals) {
    const int other = part.mover == 1 ? 2 : 1;
    std::vector<GraphPart> parts = {part};
    if (problem.HasMover(other)) {
        if (!problem.EquationsOf(other).IsComplete())
            return Box{kMissingEquations};
        if (const auto own = OwnPart(problem, other))
            parts.push_back(*own);
    }
    return ShowGraph{GraphOf(parts, decimals)};
}

}  // namespace

Step ClickInterval(const Problem& problem, const Place& first, const Place& second, bool with_graph,
                   int decimals) {
    if (!problem.configuration.IsConfigured())
        return text::Refusal{kConfigureFirst};
    if (first.mover != second.mover)
        return text::Refusal{kTwoMovers};
    const auto first_time = TimeAt(problem, first);
    const auto second_time = TimeAt(problem, second);
    if (!first_time || !second_time)
        return text::Refusal{kNoTime};
    const Equations& equations = problem.EquationsOf(first.mover);
    if (!equations.IsComplete())
        return text::Refusal{kNoEquations + std::to_string(first.mover) + "."};
    const Flight& flight = equations.flight;
    const auto length = PathLength(flight, *first_time, *second_time);
    if (!length)
        return text::Refusal{kNoLength};
    Outcome outcome = {
        problem, {WriteLines{PathReport(first.mover, flight, *first_time, *second_time, *length, decimals)}}};
    if (with_graph)
        outcome.events.push_back(
            GraphEvent(problem, {first.mover, &flight, *first_time, *second_time}, decimals));
    return outcome;
}

}  // namespace tavrelo::mechanics::projectile
