#pragma once

#include <span>
#include <vector>

#include "numeric/point.h"

namespace tavrelo::numeric {

struct Polygon {
    std::vector<double> sides;   // side i from vertex i to the next; the last one closes
    std::vector<double> angles;  // interior, degrees, at vertex i; above 180 where the polygon is concave
    double perimeter = 0.0;
    double area = 0.0;
    double angle_total = 0.0;  // degrees
    Point centroid;
};

/// The polygon of its vertices in order, in either sense. The interior angle is 180 minus the turn from side
/// to side, taken in the sense of the polygon. Fails with DivisionByZero when the area is 0 but for rounding
/// (vertices in one line, fewer than three), and with Overflow.
Polygon SolvePolygon(std::span<const Point> vertices);

}  // namespace tavrelo::numeric
