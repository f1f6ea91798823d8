#pragma once

#include "numeric/sampled_function.h"

namespace tavrelo::numeric {

/// Relative accuracy that is asked of Integrate.
inline constexpr double kIntegralAccuracy = 1e-6;

/// The integral of f between a and b by Simpson's rule on refined trapezoids, until two results agree within
/// `eps` of their size or after ten rounds (513 values). Limits in falling order are exchanged and the sign
/// stays: from 5 to 1 is as from 1 to 5. Fails with what f fails with and with Overflow.
double Integrate(SampledFunction f, double a, double b, double eps = kIntegralAccuracy);

/// The integral of a constant, for formulas that are one number: k (b - a), which is negative for limits in
/// falling order, unlike Integrate.
double IntegrateConstant(double k, double a, double b);

}  // namespace tavrelo::numeric
