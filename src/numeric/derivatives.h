#pragma once

#include <array>

#include "numeric/function_ref.h"

namespace tavrelo::numeric {

struct DerivativeEstimate {
    double value;
    double error;  // estimate, not below 0
};

/// The derivative of f at x by Ridders' method: central differences with the step h, h/1.4, h/1.4^2, ...
/// extrapolated to the step 0, at most ten of them. h should be a length over which f changes noticeably; f
/// is evaluated at x - h and x + h. Fails with DivisionByZero for h = 0 and with what f fails with.
DerivativeEstimate Derivative(RealFunction f, double x, double h);

/// The second derivative of f at x by the central difference of five points x - 2h to x + 2h. Fails with
/// DivisionByZero for h = 0 (or an h whose square is too small for a double) and with what f fails with.
double SecondDeriv(RealFunction f, double x, double h);
/// The same from the five values, from x + 2h down to x - 2h.
double SecondDifference(const std::array<double, 5>& values, double h);

}  // namespace tavrelo::numeric
