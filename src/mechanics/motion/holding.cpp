#include "mechanics/motion/holding.h"

#include <algorithm>
#include <cmath>

namespace tavrelo::mechanics::motion {

namespace {

constexpr double kLargestSum = 0.001;
constexpr double kPartOfLargestTerm = 0.001;
constexpr double kPartLostToRounding = 1e-9;

}  // namespace

bool TermsCancel(std::span<const double> terms) {
    double sum = 0, largest = 0;
    for (const double term : terms) {
        sum += term;
        largest = std::max(largest, std::abs(term));
    }
    if (!std::isfinite(sum))
        return false;
    const double allowed = std::min(kLargestSum, kPartOfLargestTerm * largest);
    return std::abs(sum) <= std::max(allowed, kPartLostToRounding * largest);
}

}  // namespace tavrelo::mechanics::motion
