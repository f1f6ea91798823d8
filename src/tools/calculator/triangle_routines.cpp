#include "tools/calculator/triangle_routines.h"

#include <array>
#include <iterator>

#include "numeric/polygons.h"
#include "numeric/triangles.h"
#include "text/number_text.h"
#include "tools/calculator/figure_drawing.h"
#include "tools/calculator/result_text.h"

namespace tavrelo::tools::calculator {
namespace {

using numeric::Point;
using Lines = std::vector<std::string>;

/// A triangle's side has one colour in the report and in the drawing.
struct SideColor {
    char style;  // colour digit of a report's tag
    text::Color color;
};
constexpr std::array<SideColor, 3> kSideColors = {{
    {'1', text::FromBgr(255)},
    {'3', text::FromBgr(16711680)},
    {'8', text::FromBgr(16711935)},
}};
constexpr std::size_t kSides = kSideColors.size();
constexpr text::Color kPolygonColors[] = {
    text::Rgb(255, 0, 0),  text::Rgb(0, 0, 255),   text::Rgb(255, 0, 255), text::Rgb(0, 128, 0),
    text::Rgb(128, 64, 0), text::Rgb(0, 128, 128), text::Rgb(255, 128, 0),
};
constexpr std::string_view kSample = "_ ";  // stands for the side where the drawing numbers it

/// The drawing joins vertex 2 to 3, 3 to 1, 1 to 2: side i lies opposite vertex i.
constexpr std::array<std::size_t, kSides> kDrawingOrder = {1, 2, 0};

std::string Labelled(const RoutineRun& run, const Point& point) { return PointText(run, point.x, point.y); }

Lines SideLines(const RoutineRun& run, const numeric::Triangle& triangle, std::string_view sample) {
    Lines lines;
    for (std::size_t i = 0; i < kSides; ++i)
        lines.push_back("\\100" + std::string(1, kSideColors[i].style) + std::string(sample) +
                        run.Bare(triangle.sides[i]) + ", " + run.Bare(triangle.angles[i]) + "°\\");
    return lines;
}

void AddTriangle(const RoutineRun& run, const numeric::Triangle& triangle, Lines& lines) {
    for (std::string& line : SideLines(run, triangle, {}))
        lines.push_back(std::move(line));
    lines.push_back("Perímetro = " + run.Bare(numeric::PerimeterOf(triangle)) +
                    ",  Área = " + run.Bare(numeric::AreaOf(triangle)));
}

Figure TriangleFigure(const std::array<Point, kSides>& vertices) {
    Figure figure;
    for (std::size_t i = 0; i < kSides; ++i) {
        figure.vertices.push_back(vertices[kDrawingOrder[i]]);
        figure.colors.push_back(kSideColors[i].color);
    }
    return figure;
}

text::Refusal RefusalOf(numeric::TriangleRefusal refusal) { return {std::string(TextOf(refusal))}; }

std::vector<Point> VerticesOf(const Arguments& arguments) {
    std::vector<Point> vertices;
    for (int k = 0; k + 1 < arguments.Count(); k += 2)
        vertices.push_back({arguments.Number(k), arguments.Number(k + 1)});
    return vertices;
}

std::string PolygonSideLine(const RoutineRun& run, const numeric::Polygon& polygon, std::size_t side) {
    const std::string from = std::to_string(side + 1);
    const std::string to = std::to_string((side + 1) % polygon.sides.size() + 1);
    return "Lado " + from + "-" + to + ":  " + run.Bare(polygon.sides[side]) + ", Ángulo en vértice " + from +
           ":  " + run.Bare(polygon.angles[side]) + "°";
}

}  // namespace

Outcome TriangleFromData(RoutineRun& run) {
    numeric::TriangleData data;
    for (std::size_t k = 0; k < data.size(); ++k)
        if (const text::Value& given = run.arguments.At(static_cast<int>(k)); text::IsNum(given))
            data[k] = given.Number();
    const auto outcome = numeric::SolveTriangle(data);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome))
        return RefusalOf(*refusal);
    const auto& solutions = std::get<numeric::TriangleSolutions>(outcome);
    Lines lines;
    AddTriangle(run, solutions.first, lines);
    if (solutions.second)
        AddTriangle(run, *solutions.second, lines);
    DrawFigure(run, TriangleFigure(numeric::PlaceTriangle(solutions.first)));
    run.Report(lines);
    return std::nullopt;
}

Outcome TriangleFromVertices(RoutineRun& run) {
    const std::vector<Point> given = VerticesOf(run.arguments);
    if (given.size() < kSides)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "vertices");
    const std::array<Point, kSides> vertices = {given[0], given[1], given[2]};
    const auto outcome = numeric::SolveTriangle(vertices);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome))
        return RefusalOf(*refusal);
    const auto& [triangle, centroid] = std::get<numeric::VertexTriangle>(outcome);
    Lines lines = SideLines(run, triangle, kSample);
    lines.push_back("Centroide en " + Labelled(run, centroid));
    lines.push_back("Perímetro = " + run.Bare(numeric::PerimeterOf(triangle)) +
                    ", Área = " + run.Bare(numeric::AreaOf(triangle)));
    Figure figure = TriangleFigure(vertices);
    for (std::size_t i = 0; i < kSides; ++i) {
        figure.vertex_labels.push_back(Labelled(run, figure.vertices[i]));
        figure.side_labels.push_back(std::to_string(i + 1));
    }
    DrawFigure(run, figure);
    run.Report(lines);
    return std::nullopt;
}

Outcome Polygon(RoutineRun& run) {
    const std::vector<Point> vertices = VerticesOf(run.arguments);
    const numeric::Polygon polygon = numeric::SolvePolygon(vertices);
    Lines lines = {
        "Perímetro = " + run.Bare(polygon.perimeter) + ". Área = " + run.Bare(polygon.area),
        "Ángulo total = " + run.Bare(polygon.angle_total) + ". Centroide:   G(" +
            run.Bare(polygon.centroid.x) + ",  " + run.Bare(polygon.centroid.y) + ")",
    };
    Figure figure{vertices, {std::begin(kPolygonColors), std::end(kPolygonColors)}};
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        lines.push_back(PolygonSideLine(run, polygon, i));
        figure.vertex_labels.push_back(Labelled(run, vertices[i]));
    }
    DrawFigure(run, figure);
    run.Report(lines);
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
