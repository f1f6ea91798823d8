#include "numeric/polygons.h"

#include <cmath>
#include <cstddef>

#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

constexpr double kStraightAngle = 180.0;
/// An area this small against its parts is nothing but their rounding.
constexpr double kRoundingShare = 1e-12;

Point Difference(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

/// Sums of the shoelace formula, over the triangles from the first vertex to each side.
struct Shoelace {
    double doubled_area = 0.0;  // positive counterclockwise
    double size = 0.0;          // sum of the products without their signs
    Point moment;               // six times area times centroid, from the first vertex
};

Shoelace SumShoelace(std::span<const Point> vertices) {
    Shoelace sums;
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
        const Point a = Difference(vertices[i], vertices[0]);
        const Point b = Difference(vertices[i + 1], vertices[0]);
        const double part = a.x * b.y - b.x * a.y;
        sums.doubled_area += part;
        sums.size += std::abs(a.x * b.y) + std::abs(b.x * a.y);
        sums.moment.x += (a.x + b.x) * part;
        sums.moment.y += (a.y + b.y) * part;
    }
    Finite(sums.size);
    return sums;
}

}  // namespace

Polygon SolvePolygon(std::span<const Point> vertices) {
    const Shoelace sums = SumShoelace(vertices);
    if (std::abs(sums.doubled_area) <= kRoundingShare * sums.size) {
        ThrowDivisionByZero();
    }
    const std::size_t n = vertices.size();
    const double sense = sums.doubled_area > 0.0 ? 1.0 : -1.0;
    Polygon polygon;
    Point last_side = Difference(vertices[0], vertices[n - 1]);
    for (std::size_t i = 0; i < n; ++i) {
        const Point side = Difference(vertices[(i + 1) % n], vertices[i]);
        const double turn = NormAngle(AngleOf(side.x, side.y) - AngleOf(last_side.x, last_side.y));
        polygon.sides.push_back(Hypot(side.x, side.y));
        polygon.angles.push_back(kStraightAngle - sense * turn);
        polygon.perimeter += polygon.sides.back();
        polygon.angle_total += polygon.angles.back();
        last_side = side;
    }
    polygon.area = std::abs(sums.doubled_area) / 2.0;
    polygon.centroid = {Finite(vertices[0].x + sums.moment.x / (3.0 * sums.doubled_area)),
                        Finite(vertices[0].y + sums.moment.y / (3.0 * sums.doubled_area))};
    Finite(polygon.perimeter);
    return polygon;
}

}  // namespace tavrelo::numeric
