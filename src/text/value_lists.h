#pragma once

#include <span>
#include <string>
#include <vector>

#include "text/value.h"

namespace tavrelo::text {

/// Plain equality of cells: "5" is not 5.
bool IsInList(const Value& value, std::span<const Value> list);

/// Largest (smallest) of `start` and the list; numeric texts count as numbers, any other text fails.
double MaxOf(const Value& start, std::span<const Value> list);
double MinOf(const Value& start, std::span<const Value> list);

/// Keeps the first of equal texts in their order, moved to the front, and blanks the rest; returns how many
/// remain.
int RemoveDuplicates(std::vector<std::string>& list);

}  // namespace tavrelo::text
