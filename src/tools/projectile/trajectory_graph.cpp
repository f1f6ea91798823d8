#include "tools/projectile/trajectory_graph.h"

#include <algorithm>

#include "drawing/draw_engine.h"
#include "drawing/graph_frame.h"
#include "frame/points_colors.h"
#include "text/picture_markup.h"
#include "tools/projectile/describe.h"

namespace tavrelo::tools::projectile {
namespace {

using drawing::GraphFrame;
using mechanics::projectile::Graph;
using mechanics::projectile::GraphCurve;
using mechanics::projectile::GraphRange;
using window::Surface;

enum Edge { kLeft, kRight, kBottom, kTop };  // of Graph::labels

constexpr double kCurveWidth = 2;  // so that the colours tell apart from the last row of a class
constexpr int kOnlyStretch = 1;

// Where the names stand, pixels.
constexpr double kHeightNameShift = 13;  // from the frame's left side to the name's left edge
constexpr double kAcrossNameDrop = 19;   // from the frame's foot to the name's top
constexpr double kEdgeGap = 4;           // from the picture's right edge
constexpr double kNameShift = 3;         // from the curve's highest point to the name's left edge
constexpr double kNameDrop = 4;          // and to its top
constexpr double kLabelGap = 8;          // between the two labels below the frame

double WidthOf(const std::string& label) { return text::MarkupWidth(label, drawing::LabelFont()); }

/// The frame in the shape of the curves, at the foot of the square that a graph has at most.
GraphFrame FrameOf(const Surface& picture, const Graph& graph) {
    GraphFrame frame(picture);
    frame.right = frame.left + graph.width * (frame.right - frame.left);
    frame.top = frame.bottom - graph.height * (frame.bottom - frame.top);
    return frame;
}

window::Point PixelOf(const GraphFrame& frame, const Graph& graph, const numeric::Point& point) {
    const numeric::Point placed = graph.Placed(point);
    return {frame.left + placed.x * (frame.right - frame.left),
            frame.bottom - placed.y * (frame.bottom - frame.top)};
}

bool CrossesZero(const GraphRange& range) { return range.low < 0 && range.high > 0; }

void DrawZeroLines(Surface& picture, const GraphFrame& frame, const Graph& graph) {
    const window::Point origin = PixelOf(frame, graph, {0, 0});
    if (CrossesZero(graph.x))
        picture.Line(origin.x, frame.top, origin.x, frame.bottom, drawing::kGraphAxisColor);
    if (CrossesZero(graph.y))
        picture.Line(frame.left, origin.y, frame.right, origin.y, drawing::kGraphAxisColor);
}

void DrawCurve(Surface& picture, const GraphFrame& frame, const Graph& graph, const GraphCurve& curve) {
    const text::Color color = frame::StretchColor(curve.mover, kOnlyStretch);
    picture.DrawWidth = kCurveWidth;
    for (std::size_t k = 1; k < curve.points.size(); ++k) {
        const window::Point from = PixelOf(frame, graph, curve.points[k - 1]);
        const window::Point to = PixelOf(frame, graph, curve.points[k]);
        picture.Line(from.x, from.y, to.x, to.y, color);
    }
    picture.DrawWidth = 1;
}

/// Under the highest point of the curve, inside its arch.
void NameCurve(Surface& picture, const GraphFrame& frame, const Graph& graph, const GraphCurve& curve) {
    if (curve.points.empty())
        return;
    const numeric::Point& highest = *std::ranges::max_element(curve.points, {}, &numeric::Point::y);
    const window::Point at = PixelOf(frame, graph, highest);
    drawing::PrintLabel(picture, curve.name, at.x - kNameShift, at.y + kNameDrop, drawing::LabelFont(),
                        frame::StretchColor(curve.mover, kOnlyStretch));
}

/// The two labels below the frame, pushed apart where a narrow frame would let them overlap.
void LabelAcross(Surface& picture, const GraphFrame& frame, const Graph& graph) {
    const std::string& low = graph.labels[kLeft];
    const std::string& high = graph.labels[kRight];
    const double apart = (WidthOf(low) + WidthOf(high)) / 2 + kLabelGap;
    const double rightmost = picture.Width() - kEdgeGap - WidthOf(high) / 2;
    const double right = std::min(std::max(frame.right, frame.left + apart), rightmost);
    drawing::LabelXEnd(picture, frame, low, std::min(frame.left, right - apart));
    drawing::LabelXEnd(picture, frame, high, right);
}

void NameAxes(Surface& picture, const GraphFrame& frame, const Graph& graph) {
    const text::Font font = drawing::LabelFont();
    drawing::PrintLabel(picture, graph.y_name, frame.left - kHeightNameShift, frame.top, font, text::kBlack);
    drawing::PrintLabel(picture, graph.x_name, picture.Width() - kEdgeGap - WidthOf(graph.x_name),
                        frame.bottom + kAcrossNameDrop, font, text::kBlack);
}

}  // namespace

void DrawTrajectories(Surface& picture, const Graph& graph, int decimals) {
    const GraphFrame frame = FrameOf(picture, graph);
    picture.Cls();
    drawing::DrawGraphFrame(picture, frame);
    DrawZeroLines(picture, frame, graph);
    for (const GraphCurve& curve : graph.curves)
        DrawCurve(picture, frame, graph, curve);
    drawing::LabelYExtreme(picture, frame, graph.labels[kTop], frame.top);
    drawing::LabelYExtreme(picture, frame, graph.labels[kBottom], frame.bottom);
    LabelAcross(picture, frame, graph);
    NameAxes(picture, frame, graph);
    if (graph.curves.size() > 1)
        for (const GraphCurve& curve : graph.curves)
            NameCurve(picture, frame, graph, curve);
    picture.AddTip(window::GraphTip{{graph.x_name, frame.left, frame.right, graph.x.low, graph.x.high},
                                    {{graph.y_name, frame.bottom, frame.top, graph.y.low, graph.y.high}},
                                    decimals});
    picture.Describe(DescribeTrajectories(graph, decimals));
}

}  // namespace tavrelo::tools::projectile
