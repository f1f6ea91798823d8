#include "mechanics/projectile/graph.h"

#include <algorithm>

#include "mechanics/projectile/launch.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

constexpr int kSteps = 200;
/// A frame whose shorter side would be a smaller part of the longer one is a square instead.
constexpr double kThinnestFrame = 0.125;

GraphCurve CurveOf(const GraphPart& part) {
    GraphCurve curve = {part.mover, std::string(SymbolsOf(part.mover).y), {}};
    curve.points.reserve(kSteps + 1);
    const double span = part.last_time - part.first_time;
    for (int k = 0; k <= kSteps; ++k) {
        const State state = StateAt(*part.flight, part.first_time + span * k / kSteps);
        curve.points.push_back({state.x, state.y});
    }
    return curve;
}

void Include(GraphRange& range, double value) {
    range.low = std::min(range.low, value);
    range.high = std::max(range.high, value);
}

void SetRanges(Graph& graph) {
    const numeric::Point& first = graph.curves.front().points.front();
    graph.x = {first.x, first.x};
    graph.y = {first.y, first.y};
    for (const GraphCurve& curve : graph.curves)
        for (const numeric::Point& point : curve.points) {
            Include(graph.x, point.x);
            Include(graph.y, point.y);
        }
}

/// The frame in the shape of the curves.
void SetShape(Graph& graph) {
    const double across = graph.x.Extent();
    const double up = graph.y.Extent();
    const double longest = std::max(across, up);
    if (std::min(across, up) < kThinnestFrame * longest || longest == 0.0)
        return;
    graph.width = across / longest;
    graph.height = up / longest;
}

double PartOf(const GraphRange& range, double value) {
    constexpr double kMiddle = 0.5;
    return range.Extent() == 0.0 ? kMiddle : (value / 2.0 - range.low / 2.0) / range.Extent();
}

}  // namespace

numeric::Point Graph::Placed(const numeric::Point& point) const {
    return {PartOf(x, point.x), PartOf(y, point.y)};
}

Graph GraphOf(const std::vector<GraphPart>& parts, int decimals) {
    Graph graph;
    for (const GraphPart& part : parts)
        graph.curves.push_back(CurveOf(part));
    if (graph.curves.empty())
        return graph;
    SetRanges(graph);
    SetShape(graph);
    graph.labels = {text::RoundedText(graph.x.low, decimals), text::RoundedText(graph.x.high, decimals),
                    text::RoundedText(graph.y.low, decimals), text::RoundedText(graph.y.high, decimals)};
    return graph;
}

}  // namespace tavrelo::mechanics::projectile
