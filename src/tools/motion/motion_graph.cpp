#include "tools/motion/motion_graph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "drawing/draw_engine.h"
#include "drawing/graph_frame.h"
#include "frame/points_colors.h"
#include "text/number_text.h"
#include "tools/motion/describe.h"

namespace tavrelo::tools::motion {
namespace {

using drawing::GraphFrame;
using drawing::GraphScale;
using mechanics::motion::GraphCurve;
using mechanics::motion::GraphName;
using mechanics::motion::MotionGraph;
using window::Surface;

constexpr double kCurveWidth = 2;  // so that the colours tell apart from the last row of a class

// Where the names stand, pixels.
constexpr double kPositionAxisShift = 13;  // from the frame's left side to the name's left edge
constexpr double kTimeAxisDrop = 19;       // from the frame's foot to the name's top
constexpr double kEdgeGap = 4;             // from the picture's right edge
// Beside a curve: left of it and above, or right of it and below.
constexpr double kNameLeft = 12;
constexpr double kNameRise = 16;
constexpr double kNameRight = 6;
constexpr double kNameDrop = 1;

void Print(Surface& picture, const std::string& text, double x, double y, text::Color color) {
    drawing::PrintLabel(picture, text, x, y, drawing::LabelFont(), color);
}

void DrawZeroLines(Surface& picture, const GraphFrame& frame, const GraphScale& times,
                   const GraphScale& positions) {
    if (times.CrossesZero())
        picture.Line(times(0), frame.top, times(0), frame.bottom, drawing::kGraphAxisColor);
    if (positions.CrossesZero())
        picture.Line(frame.left, positions(0), frame.right, positions(0), drawing::kGraphAxisColor);
}

void LabelRanges(Surface& picture, const GraphFrame& frame, const MotionGraph& graph, int decimals) {
    drawing::LabelYExtreme(picture, frame, text::RoundedText(graph.greatest_position, decimals), frame.top);
    drawing::LabelYExtreme(picture, frame, text::RoundedText(graph.least_position, decimals), frame.bottom);
    drawing::LabelXEnd(picture, frame, text::RoundedText(graph.first_time, decimals), frame.left);
    // The frame ends near the picture's edge: the last label stands as far right as it fits.
    const std::string last = text::RoundedText(graph.last_time, decimals);
    const double half = text::TextWidth(last, drawing::LabelFont()) / 2;
    drawing::LabelXEnd(picture, frame, last, std::min(frame.right, picture.Width() - kEdgeGap - half));
}

void NameAxes(Surface& picture, const GraphFrame& frame) {
    const std::string time(mechanics::motion::kTimeAxis);
    Print(picture, std::string(mechanics::motion::kPositionAxis), frame.left - kPositionAxisShift, frame.top,
          text::kBlack);
    Print(picture, time, picture.Width() - kEdgeGap - text::TextWidth(time, drawing::LabelFont()),
          frame.bottom + kTimeAxisDrop, text::kBlack);
}

/// The points of the curves of one mover, or of the other, in pixels.
std::vector<window::Point> PointsOf(const MotionGraph& graph, const GraphScale& times,
                                    const GraphScale& positions, int mover, bool own) {
    std::vector<window::Point> points;
    for (const GraphCurve& curve : graph.curves)
        if ((curve.mover == mover) == own)
            for (std::size_t k = 0; k < curve.times.size(); ++k)
                points.push_back({times(curve.times[k]), positions(curve.positions[k])});
    return points;
}

/// Height of a polyline over a place, pixels; nothing beside it.
std::optional<double> HeightAt(const std::vector<window::Point>& line, double x) {
    for (std::size_t k = 1; k < line.size(); ++k) {
        const auto& [x1, y1] = line[k - 1];
        const auto& [x2, y2] = line[k];
        if (x1 <= x && x <= x2 && x1 < x2)
            return y1 + (y2 - y1) * (x - x1) / (x2 - x1);
    }
    return std::nullopt;
}

/// A name beside its curve, where the other mover's curve is farthest, and on the side away from it.
void NameCurve(Surface& picture, const MotionGraph& graph, const GraphScale& times,
               const GraphScale& positions, const GraphName& name) {
    constexpr double kShares[] = {0.75, 0.5, 0.25};  // of the way along the curve
    const std::vector<window::Point> own = PointsOf(graph, times, positions, name.mover, true);
    const std::vector<window::Point> other = PointsOf(graph, times, positions, name.mover, false);
    double widest = -1;
    window::Point place{};
    for (const double share : kShares) {
        const double x = own.front().x + (own.back().x - own.front().x) * share;
        const double y = HeightAt(own, x).value_or(own.back().y);
        const double gap = HeightAt(other, x).value_or(y) - y;
        if (std::abs(gap) <= widest)
            continue;
        widest = std::abs(gap);
        place = gap > 0 ? window::Point{x - kNameLeft, y - kNameRise}
                        : window::Point{x + kNameRight, y + kNameDrop};
    }
    Print(picture, std::string(name.name), place.x, place.y, frame::StretchColor(name.mover, name.stretch));
}

}  // namespace

void DrawMotionGraph(Surface& picture, const MotionGraph& graph, int decimals) {
    const GraphFrame frame(picture);
    const GraphScale times = frame.Across(std::array{graph.first_time, graph.last_time});
    const GraphScale positions = frame.Upward(std::array{graph.least_position, graph.greatest_position});
    picture.Cls();
    drawing::DrawGraphFrame(picture, frame);
    DrawZeroLines(picture, frame, times, positions);
    picture.DrawWidth = kCurveWidth;
    for (const GraphCurve& curve : graph.curves)
        drawing::DrawGraphCurve(picture, times, positions, curve.times, curve.positions,
                                frame::StretchColor(curve.mover, curve.stretch));
    picture.DrawWidth = 1;
    LabelRanges(picture, frame, graph, decimals);
    NameAxes(picture, frame);
    for (const GraphName& name : graph.names)
        NameCurve(picture, graph, times, positions, name);
    picture.AddTip(window::GraphTip{times.Tip(std::string(mechanics::motion::kTimeAxis)),
                                    {positions.Tip(std::string(mechanics::motion::kPositionAxis))},
                                    decimals});
    picture.Describe(DescribeMotionGraph(graph, decimals));
}

}  // namespace tavrelo::tools::motion
