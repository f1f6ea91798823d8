#pragma once

#include <vector>

namespace tavrelo::mechanics::projectile {

/// Two numbers that differ by at most this part of the larger one are one solution.
inline constexpr double kSameRoot = 1e-7;
/// What rounding may leave of a difference that should vanish, as a part of its terms.
inline constexpr double kRounding = 1e-9;

/// Adds a value unless it is there already, but for rounding.
void AddDistinct(std::vector<double>& values, double value);

/// The real roots of a x^2 + b x + c, in the order of numeric::QuadRoots, equal ones once: for a height of a
/// rising throw the later time comes first. Without a square term the root of the linear equation; a
/// discriminant that is negative by rounding only counts as 0. Fails with Overflow.
std::vector<double> RealRoots(double a, double b, double c);

/// The square root, or nothing below 0; what is negative by rounding beside `scale`, the size of the terms of
/// the square, counts as 0.
std::vector<double> RootOf(double square, double scale);
/// Both square roots, the positive one first; one when they are 0.
std::vector<double> BothRootsOf(double square, double scale);

}  // namespace tavrelo::mechanics::projectile
