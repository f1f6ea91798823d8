#include "tools/calculator/describe.h"

#include <cmath>
#include <numbers>

#include "drawing/words.h"
#include "text/spoken.h"

namespace tavrelo::tools::calculator {
namespace {

using drawing::NumberWords;

constexpr std::size_t kTriangle = 3;
constexpr std::size_t kMostPoints = 12;  // that are told one by one
constexpr drawing::Noun kVectors{"vector", "vectores"};
constexpr drawing::Noun kForces{"fuerza", "fuerzas", true};
constexpr drawing::Noun kPoints{"punto", "puntos"};

// Words never fail, nor do they depend on a scale: so neither does the arithmetic behind them.

double Distance(const numeric::Point& from, const numeric::Point& to) {
    return std::hypot(to.x - from.x, to.y - from.y);
}

double DegreesOf(double x, double y) {
    constexpr double kHalfTurn = 180;
    return std::atan2(y, x) * kHalfTurn / std::numbers::pi;
}

const numeric::Point& VertexBehind(const Figure& figure, std::size_t i) {
    return figure.vertices[(i + 1) % figure.vertices.size()];
}

/// Between the two sides at a vertex of a triangle, degrees.
double AngleAt(const Figure& figure, std::size_t i) {
    const numeric::Point& vertex = figure.vertices[i];
    const numeric::Point& next = VertexBehind(figure, i);
    const numeric::Point& before = VertexBehind(figure, i + 1);
    const double cross =
        (next.x - vertex.x) * (before.y - vertex.y) - (next.y - vertex.y) * (before.x - vertex.x);
    const double dot =
        (next.x - vertex.x) * (before.x - vertex.x) + (next.y - vertex.y) * (before.y - vertex.y);
    return std::abs(DegreesOf(dot, cross));
}

std::string SizeAndDirection(const DrawnVector& vector, int decimals) {
    const double size = std::hypot(vector.x, vector.y);
    if (size == 0)
        return " nulo";
    return " de " + NumberWords(size, decimals) + " " +
           drawing::DirectionWords(DegreesOf(vector.x, vector.y), decimals);
}

std::string ResultMark(const DrawnVector& vector) {
    return vector.color == kResultColor ? ", resultado" : "";
}

template <class Telling>
std::string ListOf(const std::vector<DrawnVector>& vectors, const drawing::Noun& noun, std::string_view where,
                   Telling tell) {
    if (vectors.empty())
        return drawing::AsSentence(drawing::Counted(0, noun)) + std::string(where) + ".";
    std::vector<std::string> told;
    for (const DrawnVector& vector : vectors)
        told.push_back(drawing::LabelWords(vector.label) + tell(vector) + ResultMark(vector));
    return drawing::AsSentence(drawing::Counted(vectors.size(), noun)) + std::string(where) + ": " +
           drawing::ListedAtLength(told) + ".";
}

std::string TitleOf(std::string_view formula) { return "Gráfica de " + text::SpokenText(formula); }

}  // namespace

std::string DescribeFigure(const Figure& figure, int decimals) {
    const std::size_t count = figure.vertices.size();
    std::vector<std::string> sides, vertices, angles;
    for (std::size_t i = 0; i < count; ++i) {
        const numeric::Point& vertex = figure.vertices[i];
        sides.push_back(NumberWords(Distance(vertex, VertexBehind(figure, i)), decimals));
        vertices.push_back(drawing::PlaceWords(vertex.x, vertex.y, decimals));
        if (count == kTriangle)
            angles.push_back(NumberWords(AngleAt(figure, i), decimals));
    }
    std::string words =
        count == kTriangle ? "Triángulo." : "Polígono de " + std::to_string(count) + " vértices.";
    if (!figure.vertex_labels.empty())
        words += " Vértices: " + drawing::ListedAtLength(vertices) + ".";
    words += " Lados de " + drawing::Listed(sides) + ".";
    if (!angles.empty())
        words += " Ángulos de " + drawing::Listed(angles) + " grados.";
    return words;
}

std::string DescribeVector(const DrawnVector& vector, int decimals) {
    return DescribeVerticalForce(vector, decimals) + "\nComponentes x " + NumberWords(vector.x, decimals) +
           ", y " + NumberWords(vector.y, decimals);
}

std::string DescribeVerticalForce(const DrawnVector& force, int decimals) {
    return drawing::LabelWords(force.label) + SizeAndDirection(force, decimals) + ResultMark(force);
}

std::string DescribeFromCenter(const std::vector<DrawnVector>& vectors, const AxesTurn& turn, int decimals) {
    std::string words = ListOf(vectors, kVectors, " desde el origen",
                               [&](const DrawnVector& vector) { return SizeAndDirection(vector, decimals); });
    if (turn.turned)
        words += " Ejes X prima, Y prima girados " + drawing::DegreesWords(turn.degrees, decimals) + ".";
    return words;
}

std::string DescribeAtPoints(const std::vector<DrawnVector>& vectors, int decimals) {
    return ListOf(vectors, kForces, "", [&](const DrawnVector& vector) {
        return SizeAndDirection(vector, decimals) + " en " +
               drawing::PlaceWords(vector.from.x, vector.from.y, decimals);
    });
}

std::string DescribeVerticalForces(const std::vector<DrawnVector>& forces, int decimals) {
    return ListOf(forces, kForces, " paralelas al eje z", [&](const DrawnVector& force) {
        return SizeAndDirection(force, decimals) + " en " +
               drawing::PlaceWords(force.from.x, force.from.y, decimals);
    });
}

std::string DescribeGraph(std::string_view formula, const drawing::ToldCurve& curve, int decimals) {
    return TitleOf(formula) + ": " + drawing::CurveWords(curve, decimals);
}

std::string DescribePath(std::string_view formula, const drawing::ToldCurve& path, int decimals) {
    return TitleOf(formula) + ". " + drawing::AsSentence(drawing::PathWords(path, decimals));
}

std::string DescribeFit(std::span<const double> xs, std::span<const double> ys,
                        const drawing::ToldCurve& curve, int decimals) {
    std::string words = "Ajuste a " + drawing::Counted(xs.size(), kPoints);
    if (xs.size() <= kMostPoints) {
        std::vector<std::string> points;
        for (std::size_t k = 0; k < xs.size(); ++k)
            points.push_back(drawing::PlaceWords(xs[k], ys[k], decimals));
        words += ": " + drawing::ListedAtLength(points);
    }
    return words + ". Curva: " + drawing::CurveWords(curve, decimals);
}

}  // namespace tavrelo::tools::calculator
