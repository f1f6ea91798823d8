#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "numeric/sampled_function.h"

namespace tavrelo::numeric {

/// Cells into which FindRoots divides the interval, and the most roots that it gives.
inline constexpr int kRootCells = 490;
inline constexpr int kMostRoots = 50;

enum class RootsRefusal {
    None,    // no change of sign
    Failed,  // the function failed at a sample, or two neighbouring values are too large to multiply
};
std::string_view TextOf(RootsRefusal refusal);

/// In ascending order; as many values as roots, at least one.
struct FoundRoots {
    std::vector<double> roots;
    std::vector<double> values;  // of the function at the roots
    bool more = false;           // a 51st change of sign lies behind the last root
};

/// The roots of f between a and b, in either order: the changes of sign from sample to sample, each refined
/// by at most 40 halvings until the cell is below 1e-6 or the value below 1e-10. It goes by sign, so a pole
/// counts as a root, and a root that falls on a sample, like every root without a change of sign, is missed.
/// The samples are taken by columns, so f may be asked for some behind the last one that counts.
std::variant<RootsRefusal, FoundRoots> FindRoots(SampledFunction f, double a, double b);

}  // namespace tavrelo::numeric
