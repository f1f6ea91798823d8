#pragma once

#include <span>

namespace tavrelo::numeric {

/// |a - b| <= tolerance; the bound itself counts as equal.
bool NearEq(double a, double b, double tolerance);
/// |a| lies within `percent` of |b|, bounds included; signs are dropped.
bool WithinPct(double a, double b, double percent);

/// The largest sum that counts as zero where terms should cancel, from the size of the largest term: 0.001,
/// or a thousandth of that term where it is less; rounding is allowed a billionth of it.
double LargestRest(double largest_term);

/// Largest element of a list that is not empty; fails with SubscriptRange on an empty one.
double MaxArr(std::span<const double> list);

}  // namespace tavrelo::numeric
