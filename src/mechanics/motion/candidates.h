#pragma once

#include <vector>

#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion {

/// The values that an equation gives an unknown, still to be put back into the motion.
using Candidates = std::vector<double>;

Candidates CandidatesOf(const numeric::RealRootList& roots);

/// Both square roots of a sum, the positive one first, 0 once; none when the sum is below 0 by more than
/// rounding. Fails with Overflow.
Candidates SquareRootsOfSum(const std::vector<double>& terms);

}  // namespace tavrelo::mechanics::motion
