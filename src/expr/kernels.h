#pragma once

#include <cmath>

#include "numeric/angles.h"

namespace tavrelo::expr {

// The mathematics that both ways of evaluating a formula share, without any check: where there is no result
// the value is an infinity or not a number.

/// Small whole exponents are products, as one would write them by hand.
inline double Power(double base, double exponent) {
    if (exponent == 2.0) {
        return base * base;
    }
    if (exponent == 3.0) {
        return base * base * base;
    }
    if (exponent == 4.0) {
        return (base * base) * (base * base);
    }
    return std::pow(base, exponent);
}

inline double SineOf(double angle, double factor) { return std::sin(angle * factor); }
inline double CosineOf(double angle, double factor) { return std::cos(angle * factor); }
inline double TangentOf(double angle, double factor) { return std::tan(angle * factor); }
inline double ArcTangentOf(double x) {
    return numeric::WholeDegrees(std::atan(x) * numeric::kDegreesPerRadian);
}

/// Rounded to twelve decimals, a >= b.
bool IsAtLeast(double a, double b);
/// (x - a)^n behind a, 0 before it: the step functions of beam theory.
inline double StepPowerOf(double n, double x, double a) { return IsAtLeast(x, a) ? Power(x - a, n) : 0.0; }

}  // namespace tavrelo::expr
