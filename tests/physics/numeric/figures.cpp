#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "equations.h"
#include "numeric/angles.h"
#include "numeric/numeric_kinds.h"
#include "numeric/polygons.h"
#include "numeric/triangles.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

using numeric::Point;

constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kRounding = 1e-7;
// How far from a right, a straight or an equal figure counts as clear.
constexpr double kClear = 1e-3;
// A sine within 1e-6 of 1 is that of a right angle, sides within 1e-6 are equal.
constexpr double kAtLimit = 3e-6;

double Distance(Point a, Point b) { return std::hypot(b.x - a.x, b.y - a.y); }

// The angle at `at` between the directions to the two others.
double AngleAt(Point at, Point a, Point b) {
    const double cross = (a.x - at.x) * (b.y - at.y) - (a.y - at.y) * (b.x - at.x);
    const double dot = (a.x - at.x) * (b.x - at.x) + (a.y - at.y) * (b.y - at.y);
    return std::atan2(std::abs(cross), dot) * kDegrees;
}

std::array<Point, 3> AnyVertices(Chance& chance) {
    const double size = chance.Size(1, 100);
    std::array<Point, 3> vertices;
    for (Point& vertex : vertices)
        vertex = {Rounded(chance.Between(-size, size), 2).value,
                  Rounded(chance.Between(-size, size), 2).value};
    return vertices;
}

// Side i and its angle lie opposite vertex i.
numeric::Triangle TriangleOf(const std::array<Point, 3>& v) {
    numeric::Triangle triangle;
    for (std::size_t i = 0; i < 3; ++i) {
        const Point &next = v[(i + 1) % 3], &last = v[(i + 2) % 3];
        triangle.sides[i] = Distance(next, last);
        triangle.angles[i] = AngleAt(v[i], next, last);
    }
    return triangle;
}

bool IsClear(const numeric::Triangle& triangle) {
    return *std::ranges::min_element(triangle.angles) > 0.5 &&
           *std::ranges::min_element(triangle.sides) > 0.1;
}

// Why the numbers make no triangle with the data; empty when they do. `part` of the squares may be left.
std::string FaultOf(const numeric::Triangle& found, const numeric::TriangleData& data, double part) {
    const double largest = *std::ranges::max_element(found.sides);
    if (!Agree(found.angles[0] + found.angles[1] + found.angles[2], 180, kRounding))
        return "the angles do not make 180";
    for (std::size_t i = 0; i < 3; ++i) {
        if (found.sides[i] <= 0 || found.angles[i] <= 0)
            return "a part is not above 0";
        const double b = found.sides[(i + 1) % 3], c = found.sides[(i + 2) % 3], a = found.sides[i];
        const double rest = b * b + c * c - 2 * b * c * CosDegrees(found.angles[i]) - a * a;
        if (std::abs(rest) > part * largest * largest)
            return "the law of cosines leaves " + Digits(rest);
        if ((data[2 * i] && !Agree(found.sides[i], *data[2 * i], kRounding)) ||
            (data[2 * i + 1] && !Agree(found.angles[i], *data[2 * i + 1], kRounding)))
            return "a datum is not kept";
    }
    return "";
}

bool AreAlike(const numeric::Triangle& a, const numeric::Triangle& b) {
    for (std::size_t i = 0; i < 3; ++i)
        if (!Agree(a.sides[i], b.sides[i], kClear) || !Agree(a.angles[i], b.angles[i], kClear))
            return false;
    return true;
}

// Three of the six data, those of three angles left out.
numeric::TriangleData AnyThree(Problem& problem, const numeric::Triangle& triangle, int decimals) {
    numeric::TriangleData data;
    std::size_t count = 0;
    while (count < 3 || (data[1] && data[3] && data[5])) {
        if (count == 3) {
            data = {};
            count = 0;
        }
        const std::size_t place = problem.chance.Below(6);
        if (data[place])
            continue;
        const double exact = place % 2 == 0 ? triangle.sides[place / 2] : triangle.angles[place / 2];
        data[place] = Rounded(exact, decimals).value;
        ++count;
    }
    std::string text;
    for (const auto& datum : data)
        text += (datum ? Digits(*datum) : "x") + " ";
    problem.Type(text);
    return data;
}

// Two sides and an angle opposite one of them at which the number of triangles changes: the other side's
// angle is nearly right, or the sides nearly equal.
bool IsAtLimit(const numeric::TriangleData& data) {
    for (std::size_t i = 0; i < 3; ++i)
        for (const std::size_t j : {(i + 1) % 3, (i + 2) % 3}) {
            if (!data[2 * i] || !data[2 * i + 1] || !data[2 * j])
                continue;
            const double sine = *data[2 * j] / *data[2 * i] * SinDegrees(*data[2 * i + 1]);
            if (std::abs(sine - 1) < kClear || Agree(*data[2 * i], *data[2 * j], kClear) ||
                std::abs(*data[2 * i + 1] - 90) < kClear)
                return true;
        }
    return false;
}

// So many triangles have the data; two sides and an opposite angle may have two.
std::size_t CountOf(const numeric::TriangleData& data) {
    for (std::size_t i = 0; i < 3; ++i)
        for (const std::size_t j : {(i + 1) % 3, (i + 2) % 3})
            if (data[2 * i] && data[2 * i + 1] && data[2 * j])
                return *data[2 * i] < *data[2 * j] && *data[2 * i + 1] < 90 ? 2 : 1;
    return 1;
}

}  // namespace

Verdict PlayTriangle(Problem& problem) {
    const numeric::Triangle triangle = TriangleOf(AnyVertices(problem.chance));
    if (!IsClear(triangle))
        return Right();
    const numeric::TriangleData data = AnyThree(problem, triangle, problem.chance.OneIn(2) ? 5 : 12);
    const auto outcome = numeric::SolveTriangle(data);
    const bool is_regular = !IsAtLimit(data);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome)) {
        const std::string message(numeric::TextOf(*refusal));
        return is_regular ? Wrong("refused although regular: " + message) : Refused(message);
    }
    const auto& [first, second] = std::get<numeric::TriangleSolutions>(outcome);
    const double part = is_regular ? kRounding : kAtLimit;
    std::string fault = FaultOf(first, data, part);
    if (fault.empty() && second)
        fault = FaultOf(*second, data, part);
    if (!fault.empty())
        return Wrong(fault);
    if (!is_regular)
        return Right();
    if ((second ? 2u : 1u) != CountOf(data))
        return Wrong("finds " + std::to_string(second ? 2 : 1) + " triangles of " +
                     std::to_string(CountOf(data)));
    return Right();
}

Verdict PlayNoTriangle(Problem& problem) {
    Chance& chance = problem.chance;
    const double a = Rounded(chance.Size(0.5, 50), 2).value, b = Rounded(chance.Size(0.5, 50), 2).value;
    const double angle = Rounded(chance.Between(5.0, 85.0), 2).value;
    numeric::TriangleData data;
    switch (chance.Below(5)) {
        case 0:  // a side as long as the others together, or longer
            data = {a, {}, b, {}, Rounded((a + b) * chance.Between(1.0, 3.0) + 0.01, 2).value, {}};
            break;
        case 1:  // a side too short to close the triangle
            data = {a,     {}, Rounded(a * SinDegrees(angle) * chance.Between(0.1, 0.98), 4).value,
                    angle, {}, {}};
            break;
        case 2:  // two angles of 180 or more
            data = {a, 180 - angle, {}, Rounded(angle + chance.Between(0.0, 90.0), 2).value, {}, {}};
            break;
        case 3:  // an obtuse angle opposite the shorter side
            data = {a, {}, a / 2, 180 - angle, {}, {}};
            break;
        default:  // three angles
            data = {std::nullopt, angle, std::nullopt, 50.0, std::nullopt, 130 - angle};
    }
    std::rotate(data.begin(), data.begin() + 2 * static_cast<std::ptrdiff_t>(chance.Below(3)), data.end());
    std::string text;
    for (const auto& datum : data)
        text += (datum ? Digits(*datum) : "x") + " ";
    problem.Type(text);
    const auto outcome = numeric::SolveTriangle(data);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome))
        return Refused(numeric::TextOf(*refusal));
    return Wrong("finds a triangle that cannot be");
}

Verdict PlayTriangleOfVertices(Problem& problem) {
    const std::array<Point, 3> vertices = AnyVertices(problem.chance);
    for (const Point& vertex : vertices)
        problem.Type(Digits(vertex.x) + " " + Digits(vertex.y));
    const numeric::Triangle expected = TriangleOf(vertices);
    const auto outcome = numeric::SolveTriangle(vertices);
    if (const auto* refusal = std::get_if<numeric::TriangleRefusal>(&outcome)) {
        const std::string message(numeric::TextOf(*refusal));
        return IsClear(expected) ? Wrong("refused although regular: " + message) : Refused(message);
    }
    const auto& [found, centroid] = std::get<numeric::VertexTriangle>(outcome);
    if (!IsClear(expected))
        return Right();
    if (!AreAlike(found, expected))
        return Wrong("sides " + Digits(found.sides[0]) + " " + Digits(found.sides[1]) + " " +
                     Digits(found.sides[2]));
    const double area = 0.5 * expected.sides[0] * expected.sides[1] * SinDegrees(expected.angles[2]);
    if (!Agree(numeric::AreaOf(found), area, kRounding))
        return Wrong("the area is " + Digits(numeric::AreaOf(found)) + ", not " + Digits(area));
    Sum x, y;
    for (const Point& vertex : vertices) {
        x.Add(vertex.x - centroid.x);
        y.Add(vertex.y - centroid.y);
    }
    if (!x.VanishesWithin(kRounding) || !y.VanishesWithin(kRounding))
        return Wrong("the centroid is not the middle of the vertices");
    return Right();
}

namespace {

// A polygon and a point inside it, from which its vertices follow each other by less than half a turn, so
// that no sides cross.
struct Star {
    Point middle;
    bool is_clockwise;
    std::vector<Point> vertices = {};

    const Point& At(std::size_t k) const { return vertices[k % vertices.size()]; }
};

Star AnyStar(Problem& problem) {
    Chance& chance = problem.chance;
    const std::size_t count = 3 + chance.Below(8);
    Star star = {{chance.Between(-20.0, 20.0), chance.Between(-20.0, 20.0)}, chance.OneIn(2)};
    for (std::size_t k = 0; k < count; ++k) {
        const double part = (static_cast<double>(k) + chance.Between(-0.2, 0.2)) / static_cast<double>(count);
        const double angle = (star.is_clockwise ? -360 : 360) * part, radius = chance.Between(1.0, 10.0);
        star.vertices.push_back({Rounded(star.middle.x + radius * CosDegrees(angle), 3).value,
                                 Rounded(star.middle.y + radius * SinDegrees(angle), 3).value});
        problem.Type(Digits(star.vertices.back().x) + " " + Digits(star.vertices.back().y));
    }
    return star;
}

// Why sides and angles are not those of the vertices; empty when they are.
std::string FaultOfCorners(const numeric::Polygon& found, const Star& star) {
    const std::size_t count = star.vertices.size();
    for (std::size_t k = 0; k < count; ++k) {
        if (!Agree(found.sides[k], Distance(star.At(k), star.At(k + 1)), kRounding))
            return "side " + std::to_string(k + 1) + " is " + Digits(found.sides[k]);
        const double inner = found.angles[k] > 180 ? 360 - found.angles[k] : found.angles[k];
        if (!Agree(inner, AngleAt(star.At(k), star.At(k + 1), star.At(k + count - 1)), kRounding, 1))
            return "angle " + std::to_string(k + 1) + " is " + Digits(found.angles[k]);
    }
    if (!Agree(found.angle_total, 180 * (static_cast<double>(count) - 2), kRounding))
        return "the angles make " + Digits(found.angle_total);
    return "";
}

// Why the whole is not that of the triangles from the middle to each side; empty when it is.
std::string FaultOfWhole(const numeric::Polygon& found, const Star& star) {
    double area = 0, perimeter = 0;
    Point moment = {0, 0};
    for (std::size_t k = 0; k < star.vertices.size(); ++k) {
        const Point &a = star.At(k), &b = star.At(k + 1), &m = star.middle;
        const double doubled = (a.x - m.x) * (b.y - m.y) - (a.y - m.y) * (b.x - m.x);
        const double part = star.is_clockwise ? -doubled / 2 : doubled / 2;
        area += part;
        moment = {moment.x + part * (a.x + b.x + m.x) / 3, moment.y + part * (a.y + b.y + m.y) / 3};
        perimeter += Distance(a, b);
    }
    if (!Agree(found.area, area, kRounding) || !Agree(found.perimeter, perimeter, kRounding))
        return "area " + Digits(found.area) + ", perimeter " + Digits(found.perimeter);
    if (!Agree(found.centroid.x, moment.x / area, kRounding, 10) ||
        !Agree(found.centroid.y, moment.y / area, kRounding, 10))
        return "the centroid is " + Digits(found.centroid.x) + ", " + Digits(found.centroid.y);
    return "";
}

}  // namespace

Verdict PlayPolygon(Problem& problem) {
    const Star star = AnyStar(problem);
    const numeric::Polygon found = numeric::SolvePolygon(star.vertices);
    std::string fault = FaultOfCorners(found, star);
    if (fault.empty())
        fault = FaultOfWhole(found, star);
    return fault.empty() ? Right() : Wrong(fault);
}

}  // namespace tavrelo::physics
