#include "numeric/compare.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"

namespace tavrelo::numeric {

bool NearEq(double a, double b, double tolerance) { return std::abs(a - b) <= tolerance; }

bool WithinPct(double a, double b, double percent) {
    const double share = percent / 100.0;
    const double size = std::abs(a);
    const double reference = std::abs(b);
    return (1.0 - share) * reference <= size && size <= (1.0 + share) * reference;
}

double LargestRest(double largest_term) {
    constexpr double kLargest = 0.001;
    constexpr double kPartOfLargestTerm = 0.001;
    constexpr double kPartLostToRounding = 1e-9;
    return std::max(std::min(kLargest, kPartOfLargestTerm * largest_term),
                    kPartLostToRounding * largest_term);
}

double MaxArr(std::span<const double> list) {
    if (list.empty()) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "largest element of an empty list");
    }
    return *std::max_element(list.begin(), list.end());
}

}  // namespace tavrelo::numeric
