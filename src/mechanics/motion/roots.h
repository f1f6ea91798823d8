#pragma once

#include <vector>

namespace tavrelo::mechanics::motion {

/// The real roots of a t^2 + b t + c = 0, in the order of numeric::QuadRoots; equal ones once. With a = 0 the
/// root of the rest; none when b = 0 too. A discriminant below 0 by no more than rounding counts as 0. Fails
/// with Overflow.
std::vector<double> RealRoots(double a, double b, double c);

/// Both square roots of a sum, the positive one first, 0 once; none when it is below 0 by more than rounding.
std::vector<double> SquareRootsOfSum(const std::vector<double>& terms);

/// Whether terms that should cancel do: their sum is at most 0.001 and at most a thousandth of the largest of
/// them, or no more than rounding (1e-9 of the largest).
bool Cancels(const std::vector<double>& terms);

/// Whether two numbers differ by rounding alone: at most 1e-12 of the larger one.
bool IsSame(double a, double b);
/// a - b without the noise of its rounding: 0 where they are the same.
double Difference(double a, double b);

}  // namespace tavrelo::mechanics::motion
