#include "tools/motion/motion_graph.h"

#include <algorithm>
#include <array>
#include <string>

#include "drawing/draw_engine.h"
#include "drawing/graph_frame.h"
#include "text/number_text.h"
#include "tools/motion/stretch_colors.h"

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
constexpr double kCurveNameShift = 14;     // left of the curve's end
constexpr double kCurveNameRise = 16;      // above it

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

void NameCurve(Surface& picture, const GraphFrame& frame, double x, double y, const GraphName& name) {
    Print(picture, std::string(name.name), std::max(x - kCurveNameShift, frame.left + kEdgeGap),
          std::max(y - kCurveNameRise, frame.top + kEdgeGap), StretchColor(name.mover, name.stretch));
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
                                StretchColor(curve.mover, curve.stretch));
    picture.DrawWidth = 1;
    LabelRanges(picture, frame, graph, decimals);
    NameAxes(picture, frame);
    for (const GraphName& name : graph.names)
        NameCurve(picture, frame, times(name.time), positions(name.position), name);
}

}  // namespace tavrelo::tools::motion
