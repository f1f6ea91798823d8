#include "mechanics/motion/holding.h"

#include <algorithm>
#include <cmath>

#include "numeric/compare.h"

namespace tavrelo::mechanics::motion {

bool TermsCancel(std::span<const double> terms) {
    double sum = 0, largest = 0;
    for (const double term : terms) {
        sum += term;
        largest = std::max(largest, std::abs(term));
    }
    return std::isfinite(sum) && std::abs(sum) <= numeric::LargestRest(largest);
}

}  // namespace tavrelo::mechanics::motion
