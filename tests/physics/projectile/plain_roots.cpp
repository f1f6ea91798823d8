#include "projectile/plain_roots.h"

#include <algorithm>
#include <cmath>

#include "equations.h"

namespace tavrelo::physics {

std::optional<std::vector<double>> PlainRoots(double a, double b, double c) {
    const double square = b * b - 4 * a * c;
    const double size = std::max(b * b, std::abs(4 * a * c));
    if (std::abs(square) <= 1e-6 * size)
        return std::nullopt;
    if (square < 0)
        return std::vector<double>{};
    const double sum = -b - std::copysign(std::sqrt(square), b);
    return std::vector{sum / (2 * a), sum == 0 ? 0 : 2 * c / sum};
}

bool Contains(const std::vector<double>& list, double value, double scale) {
    return std::ranges::any_of(list, [&](double each) { return Agree(each, value, 1e-5, scale); });
}

}  // namespace tavrelo::physics
