#include "mechanics/motion/candidates.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"

namespace tavrelo::mechanics::motion {

Candidates CandidatesOf(const numeric::RealRootList& roots) { return {roots.begin(), roots.end()}; }

Candidates SquareRootsOfSum(const std::vector<double>& terms) {
    double sum = 0.0;
    double largest = 0.0;
    for (const double term : terms) {
        sum = numeric::CheckedAdd(sum, term);
        largest = std::max(largest, std::abs(term));
    }
    if (sum < -numeric::kRoundingOfTerms * largest)
        return {};
    const double root = std::sqrt(std::max(0.0, sum));
    return root == 0.0 ? Candidates{0.0} : Candidates{root, -root};
}

}  // namespace tavrelo::mechanics::motion
