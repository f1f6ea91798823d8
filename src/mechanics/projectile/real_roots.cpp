#include "mechanics/projectile/real_roots.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/real_roots.h"

namespace tavrelo::mechanics::projectile {

using numeric::Finite;

void AddDistinct(std::vector<double>& values, double value) {
    const bool is_there = std::ranges::any_of(values, [value](double each) {
        return std::abs(each - value) <= kSameRoot * std::max(std::abs(each), std::abs(value));
    });
    if (!is_there)
        values.push_back(value);
}

std::vector<double> RealRoots(double a, double b, double c) {
    std::vector<double> roots;
    for (const double root : numeric::RealRoots(a, b, c))
        AddDistinct(roots, root);
    return roots;
}

std::vector<double> RootOf(double square, double scale) {
    if (Finite(square) >= 0.0)
        return {std::sqrt(square)};
    return -square <= kRounding * std::abs(scale) ? std::vector{0.0} : std::vector<double>{};
}

std::vector<double> BothRootsOf(double square, double scale) {
    std::vector<double> roots = RootOf(square, scale);
    if (!roots.empty() && roots.front() != 0.0)
        roots.push_back(-roots.front());
    return roots;
}

}  // namespace tavrelo::mechanics::projectile
