#pragma once

#include <variant>
#include <vector>

#include "mechanics/forces/resultants.h"
#include "tools/calculator/arguments.h"

namespace tavrelo::tools::calculator {

/// Vectors among the arguments, in the order read, or the refusal of the first text that is none.
using ReadVectors = std::variant<text::Refusal, std::vector<mechanics::forces::PlaneVector>>;

/// The vectors at these positions, from 0. Fails with SubscriptRange when there are not as many arguments.
ReadVectors VectorsAt(const Arguments& arguments, const std::vector<int>& positions);
/// Those from the position `first` on, in steps of `step`; fails with SubscriptRange when there are none.
ReadVectors VectorsFrom(const Arguments& arguments, int first, int step, int end);

}  // namespace tavrelo::tools::calculator
