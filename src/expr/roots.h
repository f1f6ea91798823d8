#pragma once

#include <vector>

#include "numeric/function_ref.h"

namespace tavrelo::expr {

/// The value at x; fails with a RuntimeFailure where there is none.
using ScannedFunction = numeric::RealFunction;

struct ScanRange {
    double low;
    double high;
    double interval;
    double tolerance;  // a value smaller than this in size ends a refinement
};

/// Interval scan with refinement by false position. The scan goes by sign, so it reports poles as roots,
/// misses double roots and reports a zero on the grid twice (once at the low limit); after a root it goes on
/// from the inner end of the last bracket, and its last step may pass the high limit. A value that fails
/// counts as 0 for the next step.
///
/// With low > high one step is searched from `low`; an interval of 0 or less is a 200th of the range. A scan
/// that makes no headway, of more than 100000 steps or with limits that are not finite ends at once with the
/// roots it has.
std::vector<double> ScanRoots(ScannedFunction function, ScanRange range);

}  // namespace tavrelo::expr
