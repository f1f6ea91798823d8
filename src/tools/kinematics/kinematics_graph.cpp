#include "tools/kinematics/kinematics_graph.h"

#include <algorithm>
#include <string>
#include <vector>

#include "drawing/draw_engine.h"
#include "drawing/graph_frame.h"
#include "text/number_text.h"
#include "tools/kinematics/describe.h"

namespace tavrelo::tools::kinematics {
namespace {

using drawing::GraphFrame;
using drawing::GraphScale;

constexpr double kLegendLeft = 4;  // pixels
constexpr double kLegendTop = 8;
constexpr double kLegendLine = 14;
constexpr double kLegendBlock = 54;  // from one curve's letter to the next one's
constexpr double kCurveWidth =
    2;  // of the lines, so that the colours tell apart from the last row of a class

struct Curve {
    std::string letter;
    text::Color color;
    const std::vector<double>& values;
};

std::string Shown(double number, int decimals) {
    return text::NumText(text::RoundTo(number, decimals), decimals).Text();
}

/// A third of the colour on white.
text::Color Pale(text::Color color) {
    const auto part = [&](int shift) { return 170 + ((color.rgb >> shift) & 0xff) / 3; };
    return text::Rgb(part(16), part(8), part(0));
}

void PrintLegend(window::Surface& surface, const Curve& curve, const GraphScale& scale, int place,
                 int decimals) {
    const std::string lines[] = {curve.letter, "max = " + Shown(scale.High(), decimals),
                                 "min = " + Shown(scale.Low(), decimals)};
    double y = kLegendTop + place * kLegendBlock;
    for (const std::string& line : lines) {
        drawing::PrintLabel(surface, line, kLegendLeft, y, drawing::LabelFont(), curve.color);
        y += kLegendLine;
    }
}

void LabelEnds(window::Surface& surface, const GraphFrame& frame, const GraphScale& across,
               const std::string& low, const std::string& high, int decimals) {
    drawing::LabelXEnd(surface, frame, low + Shown(across.Low(), decimals), frame.left);
    drawing::LabelXEnd(surface, frame, high + Shown(across.High(), decimals), frame.right);
}

}  // namespace

void DrawCurves(window::Surface& surface, const mechanics::kinematics::LineCurves& curves, int decimals) {
    const Curve all[] = {
        {"x", text::Rgb(0, 0, 192), curves.x},
        {"v", text::Rgb(0, 128, 0), curves.v},
        {"a", text::Rgb(192, 0, 0), curves.a},
    };
    const GraphFrame frame(surface);
    const GraphScale times = frame.Across(curves.t);
    surface.Cls();
    drawing::DrawGraphFrame(surface, frame);
    if (times.CrossesZero())
        surface.Line(times(0), frame.top, times(0), frame.bottom, drawing::kGraphAxisColor);
    for (const Curve& curve : all)
        if (!curve.values.empty())
            if (const GraphScale scale = frame.Upward(curve.values); scale.CrossesZero())
                surface.Line(frame.left, scale(0), frame.right, scale(0), Pale(curve.color));
    int place = 0;
    window::GraphTip tip{times.Tip("t"), {}, decimals};
    for (const Curve& curve : all) {
        if (curve.values.empty())
            continue;
        const GraphScale scale = frame.Upward(curve.values);
        tip.upward.push_back(scale.Tip(curve.letter));
        surface.DrawWidth = kCurveWidth;
        drawing::DrawGraphCurve(surface, times, scale, curves.t, curve.values, curve.color);
        surface.DrawWidth = 1;
        PrintLegend(surface, curve, scale, place++, decimals);
    }
    LabelEnds(surface, frame, times, "t = ", "t = ", decimals);
    if (!tip.upward.empty())
        surface.AddTip(tip);
    surface.Describe(DescribeCurves(curves, decimals));
}

void DrawTrajectory(window::Surface& surface, const mechanics::kinematics::Trajectory& path, int decimals) {
    const GraphFrame frame(surface);
    const GraphScale x = frame.Across(path.x);
    const GraphScale y = frame.Upward(path.y);
    surface.Cls();
    drawing::DrawGraphFrame(surface, frame);
    if (x.CrossesZero())
        surface.Line(x(0), frame.top, x(0), frame.bottom, drawing::kGraphAxisColor);
    if (y.CrossesZero())
        surface.Line(frame.left, y(0), frame.right, y(0), drawing::kGraphAxisColor);
    surface.DrawWidth = kCurveWidth;
    drawing::DrawGraphCurve(surface, x, y, path.x, path.y, text::Rgb(0, 0, 192));
    surface.DrawWidth = 1;
    LabelEnds(surface, frame, x, "x!m!í!n = ", "x!m!á!x = ", decimals);
    drawing::LabelYExtreme(surface, frame, "y!m!í!n = " + Shown(y.Low(), decimals), frame.bottom);
    drawing::LabelYExtreme(surface, frame, "y!m!á!x = " + Shown(y.High(), decimals), frame.top);
    surface.AddTip(window::GraphTip{x.Tip("x"), {y.Tip("y")}, decimals});
    surface.Describe(DescribeTrajectory(path, decimals));
}

}  // namespace tavrelo::tools::kinematics
