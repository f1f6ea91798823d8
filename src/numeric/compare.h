#pragma once

#include <span>
#include <string>
#include <vector>

#include "numeric/value.h"

namespace tavrelo::numeric {

/// |a - b| <= tolerance; the bound itself counts as equal.
bool NearEq(double a, double b, double tolerance);
/// |a| lies within `percent` of |b|, bounds included; signs are dropped.
bool WithinPct(double a, double b, double percent);
/// Plain equality of cells: "5" is not 5.
bool IsInList(const Value& value, std::span<const Value> list);

/// Largest (smallest) of `start` and the list; numeric texts count as numbers, any other text fails.
double MaxOf(const Value& start, std::span<const Value> list);
double MinOf(const Value& start, std::span<const Value> list);
/// Largest element of a list that is not empty; fails with SubscriptRange on an empty one.
double MaxArr(std::span<const double> list);

/// Keeps the first of equal texts in their order, moved to the front, and blanks the rest; returns how many
/// remain.
int RemoveDuplicates(std::vector<std::string>& list);

}  // namespace tavrelo::numeric
