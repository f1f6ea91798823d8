#include "tools/calculator/triangle_routines.h"

#include <array>
#include <iterator>

#include "numeric/polygons.h"
#include "numeric/triangles.h"
#include "text/number_text.h"
#include "tools/calculator/figure_drawing.h"
#include "tools/calculator/report.h"

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

std::string Labelled(const Task& task, const Point& point) { return PointText(task, point.x, point.y); }

Lines SideLines(const Task& task, const numeric::Triangle& triangle, std::string_view sample) {
    Lines lines;
    for (std::size_t i = 0; i < kSides; ++i)
        lines.push_back("\\100" + std::string(1, kSideColors[i].style) + std::string(sample) +
                        task.Bare(triangle.sides[i]) + ", " + task.Bare(triangle.angles[i]) + "°\\");
    return lines;
}

void AddTriangle(const Task& task, const numeric::Triangle& triangle, Lines& lines) {
    for (std::string& line : SideLines(task, triangle, {}))
        lines.push_back(std::move(line));
    lines.push_back("Perímetro = " + task.Bare(numeric::PerimeterOf(triangle)) +
                    ",  Área = " + task.Bare(numeric::AreaOf(triangle)));
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

std::string PolygonSideLine(const Task& task, const numeric::Polygon& polygon, std::size_t side) {
    const std::string from = std::to_string(side + 1);
    const std::string to = std::to_string((side + 1) % polygon.sides.size() + 1);
    return "Lado " + from + "-" + to + ":  " + task.Bare(polygon.sides[side]) + ", Ángulo en vértice " +
           from + ":  " + task.Bare(polygon.angles[side]) + "°";
}

}  // namespace

Outcome TriangleFromData(Task& task) {
    numeric::TriangleData data;
    for (std::size_t k = 0; k < data.size(); ++k)
        if (const text::Value& given = task.arguments.At(static_cast<int>(k)); text::IsNum(given))
            data[k] = given.Number();
    const auto outcome = numeric::SolveTriangle(data);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome))
        return RefusalOf(*refusal);
    const auto& solutions = std::get<numeric::TriangleSolutions>(outcome);
    Lines lines;
    AddTriangle(task, solutions.first, lines);
    if (solutions.second)
        AddTriangle(task, *solutions.second, lines);
    DrawFigure(task, TriangleFigure(numeric::PlaceTriangle(solutions.first)));
    task.Report(lines);
    return std::nullopt;
}

Outcome TriangleFromVertices(Task& task) {
    const std::vector<Point> given = VerticesOf(task.arguments);
    const std::array<Point, kSides> vertices = {given.at(0), given.at(1), given.at(2)};
    const auto outcome = numeric::SolveTriangle(vertices);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome))
        return RefusalOf(*refusal);
    const auto& [triangle, centroid] = std::get<numeric::VertexTriangle>(outcome);
    Lines lines = SideLines(task, triangle, kSample);
    lines.push_back("Centroide en " + Labelled(task, centroid));
    lines.push_back("Perímetro = " + task.Bare(numeric::PerimeterOf(triangle)) +
                    ", Área = " + task.Bare(numeric::AreaOf(triangle)));
    Figure figure = TriangleFigure(vertices);
    for (std::size_t i = 0; i < kSides; ++i) {
        figure.vertex_labels.push_back(Labelled(task, figure.vertices[i]));
        figure.side_labels.push_back(std::to_string(i + 1));
    }
    DrawFigure(task, figure);
    task.Report(lines);
    return std::nullopt;
}

Outcome Polygon(Task& task) {
    const std::vector<Point> vertices = VerticesOf(task.arguments);
    const numeric::Polygon polygon = numeric::SolvePolygon(vertices);
    Lines lines = {
        "Perímetro = " + task.Bare(polygon.perimeter) + ". Área = " + task.Bare(polygon.area),
        "Ángulo total = " + task.Bare(polygon.angle_total) + ". Centroide:   G(" +
            task.Bare(polygon.centroid.x) + ",  " + task.Bare(polygon.centroid.y) + ")",
    };
    Figure figure{vertices, {std::begin(kPolygonColors), std::end(kPolygonColors)}};
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        lines.push_back(PolygonSideLine(task, polygon, i));
        figure.vertex_labels.push_back(Labelled(task, vertices[i]));
    }
    DrawFigure(task, figure);
    task.Report(lines);
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
