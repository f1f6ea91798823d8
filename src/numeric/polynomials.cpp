#include "numeric/polynomials.h"

#include <cmath>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::numeric {

namespace {

constexpr double kFullTurnInRadians = 6.28318530717958;
constexpr double kHalfTurnInDegrees = 180.0;

/// |c| and the amplitude this close, in percent, count as a tangent solution.
constexpr double kTangentPercent = 0.01;

/// The sign with which a vanishing number counts as positive.
double SignOf(double x) { return x < 0.0 ? -1.0 : 1.0; }

/// The ordinary arccosine in radians. ArcCosD has end values of its own, which a quotient that rounds to 1
/// must not meet here.
double ArcCosInRadians(double x) {
    if (std::abs(x) < 1.0) {
        return ArcCosD(x) * kRadiansPerDegree;
    }
    return x > 0.0 ? 0.0 : kPi;
}

/// The cubic with x moved by `shift` to lose its square term: y^3 - 3 q y + 2 r = 0.
struct ReducedCubic {
    double q;
    double r;
    double shift;
};

ReducedCubic Reduce(double a, double b, double c, double d) {
    const double A = CheckedDivide(b, a);
    const double B = CheckedDivide(c, a);
    const double C = CheckedDivide(d, a);
    return {Finite((A * A - 3.0 * B) / 9.0), Finite((2.0 * A * A * A - 9.0 * A * B + 27.0 * C) / 54.0),
            A / 3.0};
}

CubicRootsResult ThreeRealRoots(const ReducedCubic& cubic, double q_cubed) {
    const double t = ArcCosInRadians(CheckedDivide(cubic.r, std::sqrt(q_cubed)));
    const double amplitude = -2.0 * std::sqrt(cubic.q);
    const auto root = [&](double turn) {
        return Finite(amplitude * std::cos((t + turn) / 3.0) - cubic.shift);
    };
    return {root(0.0), root(kFullTurnInRadians), root(-kFullTurnInRadians), true};
}

CubicRootsResult OneRealRoot(const ReducedCubic& cubic, double q_cubed, double r_squared) {
    const double e = -SignOf(cubic.r) * std::cbrt(std::abs(cubic.r) + CheckedSqrt(r_squared - q_cubed));
    const double f = e == 0.0 ? 0.0 : Finite(cubic.q / e);
    return {Finite(e + f - cubic.shift), Finite(-(e + f) / 2.0 - cubic.shift),
            Finite(std::sqrt(3.0) / 2.0 * (e - f)), false};
}

}  // namespace

QuadraticRoots QuadRoots(double a, double b, double c) {
    if (b == 0.0) {
        const double square = CheckedDivide(-c, a);
        const double root = std::sqrt(std::abs(square));
        return square >= 0.0 ? QuadraticRoots{root, 0.0 - root, true} : QuadraticRoots{0.0, root, false};
    }
    const double discriminant = Finite(b * b - 4.0 * a * c);
    const double s = std::sqrt(std::abs(discriminant));
    if (discriminant < 0.0) {
        return {CheckedDivide(-b, 2.0 * a), CheckedDivide(s, 2.0 * a), false};
    }
    const double t = -0.5 * (b + SignOf(b) * s);
    return {CheckedDivide(t, a), CheckedDivide(c, t), true};
}

CubicRootsResult CubicRoots(double a, double b, double c, double d) {
    if (a == 0.0) {
        const QuadraticRoots rest = QuadRoots(b, c, d);
        return {0.0, rest.first, rest.second, rest.real};
    }
    const ReducedCubic cubic = Reduce(a, b, c, d);
    const double q_cubed = Finite(cubic.q * cubic.q * cubic.q);
    const double r_squared = Finite(cubic.r * cubic.r);
    return q_cubed > r_squared ? ThreeRealRoots(cubic, q_cubed) : OneRealRoot(cubic, q_cubed, r_squared);
}

std::optional<std::pair<double, double>> SolveCosSin(double a, double b, double c) {
    const double target = -c;
    const double amplitude = Hypot(a, b);
    const double p = AngleOf(a, b);
    if (WithinPct(target, amplitude, kTangentPercent)) {
        const double d = target > 0.0 ? 0.0 : kHalfTurnInDegrees;
        return std::pair{NormAngle(p + d), NormAngle(p - d)};
    }
    if (std::abs(target) > amplitude) {
        return std::nullopt;
    }
    const double d = ArcCosD(CheckedDivide(target, amplitude));
    return std::pair{NormAngle(p - d), NormAngle(p + d)};
}

std::optional<std::pair<double, double>> CosSinRoots(double a, double b, double c) {
    const double amplitude = Hypot(a, b);
    if (std::abs(c) > amplitude || amplitude == 0.0) {
        return std::nullopt;
    }
    const double p = std::atan2(b, a) * kDegreesPerRadian;
    const double d = std::acos(CheckedDivide(-c, amplitude)) * kDegreesPerRadian;
    return std::pair{NormAngle(p - d), NormAngle(p + d)};
}

}  // namespace tavrelo::numeric
