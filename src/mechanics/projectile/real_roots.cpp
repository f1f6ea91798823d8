#include "mechanics/projectile/real_roots.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/polynomials.h"

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
    if (a == 0.0)
        return b == 0.0 ? std::vector<double>{} : std::vector{Finite(0.0 - c / b)};
    const numeric::QuadraticRoots found = numeric::QuadRoots(a, b, c);
    if (!found.real) {
        const double square = Finite(b * b);
        const double product = Finite(4.0 * a * c);
        const bool touches = std::abs(square - product) <= kRounding * (square + std::abs(product));
        return touches ? std::vector{Finite(-b / (2.0 * a))} : std::vector<double>{};
    }
    std::vector<double> roots = {Finite(found.first)};
    AddDistinct(roots, Finite(found.second));
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
