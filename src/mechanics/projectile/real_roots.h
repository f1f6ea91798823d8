#pragma once

#include <vector>

namespace tavrelo::mechanics::projectile {

/// Two numbers that differ by at most this part of the larger one are one solution.
inline constexpr double kSameRoot = 1e-7;
/// What rounding may leave of a difference that should vanish, as a part of its terms.
inline constexpr double kRounding = 1e-9;

/// Adds a value unless it is there already, but for rounding.
void AddDistinct(std::vector<double>& values, double value);

/// numeric::RealRoots, near ones once: for a height of a rising throw the later time comes first.
std::vector<double> RealRoots(double a, double b, double c);

/// The square root, or nothing below 0; what is negative by rounding beside `scale`, the size of the terms of
/// the square, counts as 0.
std::vector<double> RootOf(double square, double scale);
/// Both square roots, the positive one first; one when they are 0.
std::vector<double> BothRootsOf(double square, double scale);

}  // namespace tavrelo::mechanics::projectile
