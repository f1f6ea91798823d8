#include "drawing/draw_engine.h"
#include "drawing/graph_frame.h"
#include "text/number_text.h"

namespace tavrelo::drawing {

using window::Surface;

void DrawEng::DrawGraph(Surface& surface, const PointLists& curve, text::Color color, int decimals,
                        const std::string& note) const {
    const GraphFrame frame(surface);
    const GraphScale x = frame.Across(curve.xs);
    const GraphScale y = frame.Upward(curve.ys);

    DrawGraphFrame(surface, frame);
    if (x.CrossesZero())
        surface.Line(x(0), frame.top, x(0), frame.bottom, kGraphAxisColor);
    if (y.CrossesZero())
        surface.Line(frame.left, y(0), frame.right, y(0), kGraphAxisColor);
    DrawGraphCurve(surface, x, y, curve.xs, curve.ys, color);

    LabelYExtreme(surface, frame, "Ymax = " + text::RoundedText(y.High(), decimals), frame.top);
    LabelYExtreme(surface, frame, "Ymin = " + text::RoundedText(y.Low(), decimals), frame.bottom);
    LabelXEnd(surface, frame, text::RoundedText(x.Low(), decimals), frame.left);
    LabelXEnd(surface, frame, text::RoundedText(x.High(), decimals), frame.right);
    surface.AddTip(window::GraphTip{x.Tip("x"), {y.Tip("y")}, decimals, note});
}

void DrawEng::DrawGraphPoints(Surface& surface, const PointLists& curve, const PointLists& points,
                              text::Color color) const {
    constexpr double kRadius = 3;
    const GraphFrame frame(surface);
    const GraphScale x_scale = frame.Across(curve.xs);
    const GraphScale y_scale = frame.Upward(curve.ys);
    for (std::size_t k = 0; k < points.xs.size(); ++k) {
        const double x = x_scale(points.xs[k]);
        const double y = y_scale(points.ys[k]);
        if (x >= 0 && x <= surface.Width() && y >= 0 && y <= surface.Height())
            surface.Circle(x, y, kRadius, color);
    }
}

}  // namespace tavrelo::drawing
