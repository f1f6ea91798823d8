#include "tools/rigid/diagram.h"

#include "drawing/draw_engine.h"

namespace tavrelo::tools::rigid {
namespace {

void DrawArrow(window::Surface& canvas, const DiagramArrow& arrow) {
    const drawing::Arrow drawn{.length = arrow.length,
                               .hour = arrow.hour,
                               .angle = arrow.angle,
                               .color = arrow.color,
                               .width = arrow.width};
    drawing::DrawEng engine;
    engine.MoveTo(canvas, arrow.tail.x, arrow.tail.y, 1);
    engine.DrawArrow(canvas, drawn);
    if (!arrow.tip.empty())
        canvas.AddTip(window::ArrowTip{arrow.tail, PlaceOf(drawn, arrow.tail).tip, arrow.tip});
}

void DrawLine(window::Surface& canvas, const DiagramLine& line) {
    canvas.DrawWidth = kDiagramLineWidth;
    canvas.Line(line.from.x, line.from.y, line.to.x, line.to.y, line.color);
    canvas.DrawWidth = 1;
}

void DrawDot(window::Surface& canvas, const DiagramDot& dot) {
    canvas.Filled = true;
    canvas.FillColor = dot.color;
    canvas.Circle(dot.center.x, dot.center.y, kDotRadius, dot.color);
    canvas.Filled = false;
}

void DrawCouple(window::Surface& canvas, const DiagramCouple& couple) {
    canvas.DrawWidth = kDiagramLineWidth;
    canvas.Arc(couple.center.x, couple.center.y, couple.radius, couple.start, couple.end, couple.head.color);
    canvas.DrawWidth = 1;
    DrawArrow(canvas, couple.head);
    canvas.AddTip(window::RingTip{couple.center, couple.radius, couple.head.tip});
}

}  // namespace

void Draw(window::Surface& canvas, const Diagram& diagram) {
    for (const DiagramArrow& axis : diagram.axes)
        DrawArrow(canvas, axis);
    for (const DiagramLine& line : diagram.lines)
        DrawLine(canvas, line);
    for (const DiagramDot& dot : diagram.dots)
        DrawDot(canvas, dot);
    for (const DiagramArrow& force : diagram.forces)
        DrawArrow(canvas, force);
    for (const DiagramCouple& couple : diagram.couples)
        DrawCouple(canvas, couple);
    for (const drawing::PlacedLabel& label : diagram.labels)
        drawing::PrintLabel(canvas, label);
}

}  // namespace tavrelo::tools::rigid
