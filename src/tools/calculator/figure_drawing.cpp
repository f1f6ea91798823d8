#include "tools/calculator/figure_drawing.h"

#include <algorithm>

#include "drawing/label_placer.h"
#include "numeric/angles.h"
#include "tools/calculator/describe.h"

namespace tavrelo::tools::calculator {
namespace {

using Pixels = std::vector<window::Point>;

constexpr double kFilledPart = 0.7;
constexpr double kLineWidth = 2;

/// The vertices in pixels of the surface.
Pixels Fit(const window::Surface& surface, const std::vector<numeric::Point>& vertices) {
    const auto [left, right] = std::ranges::minmax(vertices, {}, &numeric::Point::x);
    const auto [low, high] = std::ranges::minmax(vertices, {}, &numeric::Point::y);
    const double extent = std::max(right.x - left.x, high.y - low.y);
    const double scale =
        numeric::CheckedDivide(kFilledPart * std::min(surface.Width(), surface.Height()), extent);
    const double middle_x = (left.x + right.x) / 2;
    const double middle_y = (low.y + high.y) / 2;
    Pixels pixels;
    for (const numeric::Point& vertex : vertices)
        pixels.push_back({surface.Width() / 2 + (vertex.x - middle_x) * scale,
                          surface.Height() / 2 - (vertex.y - middle_y) * scale});
    return pixels;
}

window::Point Minus(window::Point a, window::Point b) { return {a.x - b.x, a.y - b.y}; }

window::Point Unit(window::Point vector) {
    const double length = numeric::Hypot(vector.x, vector.y);
    return length == 0 ? vector : window::Point{vector.x / length, vector.y / length};
}

/// Away from both sides at a vertex: into the wider of the two angles there.
window::Point AwayFromSides(window::Point vertex, window::Point before, window::Point behind) {
    const window::Point a = Unit(Minus(vertex, before));
    const window::Point b = Unit(Minus(vertex, behind));
    return {a.x + b.x, a.y + b.y};
}

/// Across a side, away from a point inside the figure.
window::Point AwayFrom(window::Point inside, window::Point from, window::Point to) {
    const window::Point along = Minus(to, from);
    const window::Point across{-along.y, along.x};
    const window::Point inward = Minus(inside, from);
    const double side = across.x * inward.x + across.y * inward.y;
    return side > 0 ? window::Point{-across.x, -across.y} : across;
}

text::Color ColorOf(const Figure& figure, std::size_t side) {
    return figure.colors[side % figure.colors.size()];
}

void DrawSides(window::Surface& surface, const Figure& figure, const Pixels& points,
               drawing::LabelPlacer& labels) {
    surface.DrawWidth = kLineWidth;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const window::Point from = points[i];
        const window::Point to = points[(i + 1) % points.size()];
        surface.Line(from.x, from.y, to.x, to.y, ColorOf(figure, i));
        labels.AddLine(from, to);
    }
    surface.DrawWidth = 1;
}

void DrawLabels(window::Surface& surface, const Figure& figure, const Pixels& points,
                drawing::LabelPlacer& labels) {
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < figure.vertex_labels.size(); ++i)
        drawing::PrintLabel(surface, labels.Place(figure.vertex_labels[i], points[i],
                                                  AwayFromSides(points[i], points[(i + count - 1) % count],
                                                                points[(i + 1) % count]),
                                                  text::kBlack));
    for (std::size_t i = 0; i < figure.side_labels.size(); ++i) {
        const window::Point from = points[i];
        const window::Point to = points[(i + 1) % count];
        const window::Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
        drawing::PrintLabel(
            surface, labels.Place(figure.side_labels[i], middle, AwayFrom(points[(i + 2) % count], from, to),
                                  ColorOf(figure, i)));
    }
}

}  // namespace

void DrawFigure(RoutineRun& run, const Figure& figure) {
    if (figure.vertices.empty() || figure.colors.empty())
        return;
    window::Surface& surface = run.Picture();
    const Pixels points = Fit(surface, figure.vertices);
    drawing::LabelPlacer labels(surface);
    surface.Cls();
    run.engine.Begin();
    DrawSides(surface, figure, points, labels);
    DrawLabels(surface, figure, points, labels);
    surface.Describe(DescribeFigure(figure, run.decimals));
}

}  // namespace tavrelo::tools::calculator
