#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

#include "numeric/point.h"

namespace tavrelo::numeric {

/// Sides and the angles opposite them, in degrees: angles[i] lies opposite sides[i].
struct Triangle {
    std::array<double, 3> sides{};
    std::array<double, 3> angles{};
};

/// One or two triangles that fit the data; of two, the one whose found angle is acute comes first.
struct TriangleSolutions {
    Triangle first;
    std::optional<Triangle> second;
};

enum class TriangleRefusal {
    ThreeAngles,
    NotThreeData,
    AngleTooLarge,  // 180 degrees or more
    Inconsistent,   // no triangle has these; also a side or an angle that is not above 0
    NoTriangle,     // three sides of which one is as long as the others together
    Collinear,      // the vertices lie in one line
};
std::string_view TextOf(TriangleRefusal refusal);

/// Lengths or angles closer than this, and a doubled area within it, count as equal and as zero.
inline constexpr double kTriangleTolerance = 1e-6;

/// The data in the order L1, A1, L2, A2, L3, A3, angle Ai (degrees) opposite side Li; nothing where unknown.
using TriangleData = std::array<std::optional<double>, 6>;

/// The triangle of three data. An angle whose cosine is exactly 1 or -1 is 180 or -180, as ArcCosD has it
/// (a side a hundred million times shorter than the others). Fails with Overflow.
std::variant<TriangleRefusal, TriangleSolutions> SolveTriangle(const TriangleData& data);

struct VertexTriangle {
    Triangle triangle;  // side i lies opposite vertex i, so angle i is the one at vertex i
    Point centroid;
};
/// The triangle of three vertices: Collinear when its doubled area is within the tolerance. Fails with
/// Overflow.
std::variant<TriangleRefusal, VertexTriangle> SolveTriangle(const std::array<Point, 3>& vertices);

double PerimeterOf(const Triangle& triangle);
/// Half of two sides times the sine of the angle between.
double AreaOf(const Triangle& triangle);

/// Vertices for a drawing, y upward, vertex i opposite side i: side 1 level from (0, 0), vertex 2, to
/// vertex 3 on the right, vertex 1 above it.
std::array<Point, 3> PlaceTriangle(const Triangle& triangle);

}  // namespace tavrelo::numeric
