#include "numeric/triangles.h"

#include <algorithm>
#include <cmath>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::numeric {

namespace {

constexpr double kRightAngle = 90.0;
constexpr double kStraightAngle = 180.0;

using Solution = std::variant<TriangleRefusal, TriangleSolutions>;
using Corners = std::array<std::size_t, 3>;  // a, b, c of a worked case as indices of the triangle

double Square(double x) { return Finite(x * x); }

/// Third side by the law of cosines, from two sides and the angle between.
double SideByCosines(double a, double b, double angle) {
    return CheckedSqrt(std::max(0.0, Finite(Square(a) + Square(b) - 2.0 * a * b * CosD(angle))));
}

/// Angle opposite a by the law of cosines.
double AngleByCosines(double a, double b, double c) {
    const double cosine = CheckedDivide(Finite(Square(b) + Square(c) - Square(a)), 2.0 * b * c);
    return ArcCosD(std::clamp(cosine, -1.0, 1.0));
}

std::array<double, 3> AnglesByCosines(const std::array<double, 3>& sides) {
    const auto [a, b, c] = sides;
    return {AngleByCosines(a, b, c), AngleByCosines(b, c, a), AngleByCosines(c, a, b)};
}

double SumOf(const std::array<double, 3>& values) { return values[0] + values[1] + values[2]; }

/// The known data, by kind.
class GivenData {
  public:
    explicit GivenData(const TriangleData& data) : m_data(data) {}

    const std::optional<double>& Side(std::size_t i) const { return m_data[2 * i]; }
    const std::optional<double>& Angle(std::size_t i) const { return m_data[2 * i + 1]; }
    int KnownSides() const { return Side(0).has_value() + Side(1).has_value() + Side(2).has_value(); }
    int KnownAngles() const { return Angle(0).has_value() + Angle(1).has_value() + Angle(2).has_value(); }
    // The number of the only one of its kind, in the cases that ask for it.
    std::size_t KnownSide() const { return Side(0) ? 0 : Side(1) ? 1 : 2; }
    std::size_t KnownAngle() const { return Angle(0) ? 0 : Angle(1) ? 1 : 2; }
    std::size_t UnknownSide() const { return !Side(0) ? 0 : !Side(1) ? 1 : 2; }
    std::size_t UnknownAngle() const { return !Angle(0) ? 0 : !Angle(1) ? 1 : 2; }
    bool AllPositive() const {
        return std::all_of(m_data.begin(), m_data.end(),
                           [](const auto& datum) { return !datum || *datum > 0.0; });
    }

  private:
    const TriangleData& m_data;
};

/// Gives the sides and angles a, b, c of a worked case back to their own numbers.
Triangle MovedBack(const Triangle& worked, const Corners& corners) {
    Triangle triangle;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        triangle.sides[corners[i]] = worked.sides[i];
        triangle.angles[corners[i]] = worked.angles[i];
    }
    return triangle;
}

Triangle FromTwoSidesAndAngleBetween(double a, double b, double angle_c) {
    const double c = SideByCosines(a, b, angle_c);
    return {{a, b, c}, {AngleByCosines(a, b, c), AngleByCosines(b, c, a), angle_c}};
}

/// The triangle of sides a and b with these angles opposite, its third side by the law of cosines.
Triangle FromAngles(double a, double b, double angle_a, double angle_b) {
    const double angle_c = kStraightAngle - angle_a - angle_b;
    return {{a, b, SideByCosines(a, b, angle_c)}, {angle_a, angle_b, angle_c}};
}

/// The same with the third side by the law of sines.
Triangle FromSines(double a, double b, double angle_a, double angle_b) {
    const double angle_c = kStraightAngle - angle_a - angle_b;
    return {{a, b, CheckedDivide(b * SinD(angle_c), SinD(angle_b))}, {angle_a, angle_b, angle_c}};
}

Triangle FromHypotenuse(double a, double b) {
    const double angle_c = ArcCosD(CheckedDivide(a, b));
    return {{a, b, b * SinD(angle_c)}, {kRightAngle - angle_c, kRightAngle, angle_c}};
}

/// Two sides and the angle opposite b, which is acute: none, one or two triangles.
Solution FromAcuteAngle(double a, double b, double angle_b) {
    const double sine_a = CheckedDivide(a, b) * SinD(angle_b);
    if (NearEq(sine_a, 1.0, kTriangleTolerance)) {
        return TriangleSolutions{{{a, b, a * CosD(angle_b)}, {kRightAngle, angle_b, kRightAngle - angle_b}},
                                 {}};
    }
    if (sine_a > 1.0) {
        return TriangleRefusal::Inconsistent;
    }
    if (NearEq(a, b, kTriangleTolerance)) {
        return TriangleSolutions{
            {{a, b, 2.0 * a * CosD(angle_b)}, {angle_b, angle_b, kStraightAngle - 2.0 * angle_b}}, {}};
    }
    const double angle_a = ArcSinD(sine_a);
    if (b > a) {
        return TriangleSolutions{FromAngles(a, b, angle_a, angle_b), {}};
    }
    return TriangleSolutions{FromSines(a, b, angle_a, angle_b),
                             FromSines(a, b, kStraightAngle - angle_a, angle_b)};
}

/// Two sides and the angle opposite b.
Solution FromTwoSidesAndOppositeAngle(double a, double b, double angle_b) {
    if (angle_b < kRightAngle) {
        return FromAcuteAngle(a, b, angle_b);
    }
    if (b <= a) {
        return TriangleRefusal::Inconsistent;
    }
    if (angle_b == kRightAngle) {
        return TriangleSolutions{FromHypotenuse(a, b), {}};
    }
    return TriangleSolutions{FromAngles(a, b, ArcSinD(CheckedDivide(a, b) * SinD(angle_b)), angle_b), {}};
}

Solution FromTwoSides(const GivenData& data) {
    const std::size_t third = data.UnknownSide();
    const std::size_t at = data.KnownAngle();
    if (*data.Angle(at) >= kStraightAngle) {
        return TriangleRefusal::AngleTooLarge;
    }
    // c is the third side; the numbers 0, 1, 2 add up to 3.
    const bool between = at == third;
    const std::size_t b = between ? (third + 1) % 3 : at;
    const Corners corners = {3 - b - third, b, third};
    const double side_a = *data.Side(corners[0]);
    const double side_b = *data.Side(corners[1]);
    if (between) {
        return TriangleSolutions{
            MovedBack(FromTwoSidesAndAngleBetween(side_a, side_b, *data.Angle(at)), corners), {}};
    }
    Solution solution = FromTwoSidesAndOppositeAngle(side_a, side_b, *data.Angle(at));
    if (auto* solutions = std::get_if<TriangleSolutions>(&solution)) {
        solutions->first = MovedBack(solutions->first, corners);
        if (solutions->second) {
            solutions->second = MovedBack(*solutions->second, corners);
        }
    }
    return solution;
}

Solution FromTwoAngles(const GivenData& data) {
    Triangle triangle;
    for (std::size_t i = 0; i < 3; ++i) {
        triangle.angles[i] = data.Angle(i).value_or(0.0);
    }
    const double sum = SumOf(triangle.angles);
    if (sum >= kStraightAngle) {
        return TriangleRefusal::Inconsistent;
    }
    triangle.angles[data.UnknownAngle()] = kStraightAngle - sum;
    const std::size_t known = data.KnownSide();
    const double ratio = CheckedDivide(*data.Side(known), SinD(triangle.angles[known]));
    for (std::size_t i = 0; i < 3; ++i) {
        triangle.sides[i] = i == known ? *data.Side(known) : Finite(ratio * SinD(triangle.angles[i]));
    }
    return TriangleSolutions{triangle, {}};
}

Solution FromThreeSides(const GivenData& data) {
    const std::array<double, 3> sides = {*data.Side(0), *data.Side(1), *data.Side(2)};
    const double longest = *std::max_element(sides.begin(), sides.end());
    if (longest >= SumOf(sides) - longest) {
        return TriangleRefusal::NoTriangle;
    }
    return TriangleSolutions{{sides, AnglesByCosines(sides)}, {}};
}

}  // namespace

std::string_view TextOf(TriangleRefusal refusal) {
    switch (refusal) {
        case TriangleRefusal::ThreeAngles:
            return "Estás especificando 3 ángulos.";
        case TriangleRefusal::NotThreeData:
            return "Deben ser exactamente 3 argumentos. ";
        case TriangleRefusal::AngleTooLarge:
            return "Ángulo mayor de 180°.";
        case TriangleRefusal::Inconsistent:
            return "Los datos son inconsistentes.";
        case TriangleRefusal::NoTriangle:
            return "No forman un triángulo.";
        case TriangleRefusal::Collinear:
            return "Los puntos dados están en una misma línea recta.";
    }
    return "";
}

std::variant<TriangleRefusal, TriangleSolutions> SolveTriangle(const TriangleData& values) {
    const GivenData data(values);
    if (data.KnownSides() + data.KnownAngles() != 3) {
        return TriangleRefusal::NotThreeData;
    }
    if (data.KnownSides() == 0) {
        return TriangleRefusal::ThreeAngles;
    }
    if (!data.AllPositive()) {
        return TriangleRefusal::Inconsistent;
    }
    switch (data.KnownSides()) {
        case 1:
            return FromTwoAngles(data);
        case 2:
            return FromTwoSides(data);
        default:
            return FromThreeSides(data);
    }
}

std::variant<TriangleRefusal, VertexTriangle> SolveTriangle(const std::array<Point, 3>& vertices) {
    const auto& [p, q, r] = vertices;
    const double doubled_area = Finite((q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y));
    if (NearEq(doubled_area, 0.0, kTriangleTolerance)) {
        return TriangleRefusal::Collinear;
    }
    const std::array<double, 3> sides = {Hypot(r.x - q.x, r.y - q.y), Hypot(p.x - r.x, p.y - r.y),
                                         Hypot(q.x - p.x, q.y - p.y)};
    return VertexTriangle{{sides, AnglesByCosines(sides)},
                          {Finite((p.x + q.x + r.x) / 3.0), Finite((p.y + q.y + r.y) / 3.0)}};
}

double PerimeterOf(const Triangle& triangle) { return Finite(SumOf(triangle.sides)); }

double AreaOf(const Triangle& triangle) {
    return std::abs(Finite(0.5 * triangle.sides[0] * triangle.sides[1] * SinD(triangle.angles[2])));
}

std::array<Point, 3> PlaceTriangle(const Triangle& triangle) {
    const double side = triangle.sides[2];
    const double angle = triangle.angles[1];
    return {Point{side * CosD(angle), side * SinD(angle)}, Point{}, Point{triangle.sides[0], 0.0}};
}

}  // namespace tavrelo::numeric
