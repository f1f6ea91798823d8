#pragma once

#include <optional>
#include <utility>

namespace tavrelo::numeric {

/// Roots of a quadratic. `real`: the two real roots; else the real and the imaginary part of the complex
/// pair.
struct QuadraticRoots {
    double first;
    double second;
    bool real;
};
/// Roots of a x^2 + b x + c = 0 by the numerically stable textbook form. a = 0 fails with DivisionByZero.
QuadraticRoots QuadRoots(double a, double b, double c);

/// Roots of a cubic. `real`: three real roots; else one real root, then real and imaginary part of the pair.
struct CubicRootsResult {
    double first;
    double second;
    double third;
    bool real;
};
/// Roots of a x^3 + b x^2 + c x + d = 0, trigonometric and Cardano form. With a = 0 the first slot is a fixed
/// 0 and the others are those of the quadratic.
CubicRootsResult CubicRoots(double a, double b, double c, double d);

/// The two angles t (degrees) with a cos t + b sin t + c = 0; nothing when there are none. |c| within one
/// part in ten thousand of the amplitude counts as tangent: both angles are then equal.
std::optional<std::pair<double, double>> SolveCosSin(double a, double b, double c);
/// The angles at which that sum vanishes, be they ever so near to each other; nothing when there are none, or
/// when a and b are 0.
std::optional<std::pair<double, double>> CosSinRoots(double a, double b, double c);

}  // namespace tavrelo::numeric
