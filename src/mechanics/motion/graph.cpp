#include "mechanics/motion/graph.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "mechanics/motion/legs.h"
#include "mechanics/motion/times.h"
#include "mechanics/points/names.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::motion {

namespace {

using text::Refusal;

/// Lines into which a curve across the whole frame is divided: a line every two or three pixels.
constexpr double kLinesAcross = 120;

/// The times of a leg's points, evenly and with the moment of turning.
std::vector<double> TimesOf(const Leg& leg, double frame_duration) {
    if (leg.motion.a == 0)
        return {leg.from, leg.to};
    const double part = (leg.to - leg.from) / frame_duration;
    const auto lines = static_cast<std::size_t>(std::max(2.0, std::ceil(kLinesAcross * part)));
    std::vector<double> times;
    times.reserve(lines + 2);
    for (std::size_t k = 0; k < lines; ++k)
        times.push_back(leg.from + (leg.to - leg.from) * static_cast<double>(k) / static_cast<double>(lines));
    times.push_back(leg.to);
    if (const auto turn = TurningTime(leg)) {
        const auto place = std::lower_bound(times.begin(), times.end(), *turn);
        if (*place != *turn)
            times.insert(place, *turn);
    }
    return times;
}

GraphCurve CurveOf(const Leg& leg, double frame_duration) {
    GraphCurve curve = {leg.mover, leg.stretch, TimesOf(leg, frame_duration), {}};
    curve.positions.reserve(curve.times.size());
    for (const double t : curve.times)
        curve.positions.push_back(leg.motion.PositionAt(t));
    return curve;
}

/// The part of a stretch, with equations and at least two times in the table, that lies within a frame.
std::optional<Leg> LegWithin(const Problem& problem, int mover, int stretch, double first, double last) {
    const Equations& equations = problem.EquationsOf(mover, stretch);
    if (!equations.IsComplete())
        return std::nullopt;
    std::vector<double> times;
    const points::Stretch& limits = problem.configuration.StretchAt(mover, stretch);
    for (int point = limits.first; point <= limits.last; ++point)
        if (const auto time = TimeOf(problem, mover, point))
            times.push_back(*time);
    if (times.empty())
        return std::nullopt;
    const auto [earliest, latest] = std::minmax_element(times.begin(), times.end());
    const double from = std::max(*earliest, first), to = std::min(*latest, last);
    if (from >= to)
        return std::nullopt;
    return Leg{mover, stretch, from, to, equations.Expanded()};
}

std::vector<Leg> LegsOfOther(const Problem& problem, int mover, double first, double last) {
    std::vector<Leg> legs;
    for (int stretch = 1; problem.configuration.HasStretch(mover, stretch); ++stretch)
        if (const auto leg = LegWithin(problem, mover, stretch, first, last))
            legs.push_back(*leg);
    return legs;
}

void SetRange(MotionGraph& graph) {
    graph.least_position = graph.greatest_position = graph.curves.front().positions.front();
    for (const GraphCurve& curve : graph.curves) {
        const auto [least, greatest] = std::minmax_element(curve.positions.begin(), curve.positions.end());
        graph.least_position = std::min(graph.least_position, *least);
        graph.greatest_position = std::max(graph.greatest_position, *greatest);
    }
    numeric::CheckedSubtract(graph.greatest_position, graph.least_position);
}

/// A curve goes by the name of its mover's position, whatever the stretch.
GraphName NameOf(const GraphCurve& curve) {
    return {points::NamesOf(curve.mover, 1).position, curve.mover, curve.stretch};
}

std::optional<std::string_view> WhyNoInterval(const Problem& problem, const points::PointPlace& first,
                                              const points::PointPlace& last) {
    if (first.mover != last.mover)
        return kSpansMovers;
    if (first.point == problem.configuration.StretchAt(first.mover, first.stretch).last)
        return kStartsAtAnEnd;
    if (last.point == problem.configuration.StretchAt(last.mover, last.stretch).first)
        return kEndsAtAStart;
    return std::nullopt;
}

}  // namespace

std::variant<Refusal, MotionGraph> GraphBetween(const Problem& problem, const points::PointPlace& first,
                                                const points::PointPlace& last) {
    if (const auto why = WhyNoInterval(problem, first, last))
        return Refusal{std::string(*why)};
    const auto answer = LegsBetween(problem, first, last);
    if (const auto* refusal = std::get_if<Refusal>(&answer))
        return *refusal;
    std::vector<Leg> legs = std::get<std::vector<Leg>>(answer);
    if (legs.empty())
        throw numeric::RuntimeFailure(numeric::FailureCode::OutOfDomain, "graph of no duration");

    MotionGraph graph;
    graph.first_time = legs.front().from;
    graph.last_time = legs.back().to;
    const double duration = numeric::CheckedSubtract(graph.last_time, graph.first_time);
    for (const Leg& leg : legs)
        graph.curves.push_back(CurveOf(leg, duration));
    const int other = first.mover == 1 ? 2 : 1;
    for (const Leg& leg : LegsOfOther(problem, other, graph.first_time, graph.last_time))
        graph.curves.push_back(CurveOf(leg, duration));
    if (graph.curves.size() > legs.size())
        graph.names.push_back(NameOf(graph.curves.back()));
    SetRange(graph);
    return graph;
}

}  // namespace tavrelo::mechanics::motion
