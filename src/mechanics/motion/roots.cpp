#include "mechanics/motion/roots.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/polynomials.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr double kRounding = 1e-12;
constexpr double kLargestSum = 1e-3;
constexpr double kLargestPart = 1e-3;
constexpr double kRoundingPart = 1e-9;

}  // namespace

std::vector<double> RealRoots(double a, double b, double c) {
    if (a == 0.0)
        return b == 0.0 ? std::vector<double>{} : std::vector{numeric::CheckedDivide(-c, b)};
    if (b != 0.0 && c == 0.0)
        return {numeric::CheckedDivide(-b, a), 0.0};
    const double discriminant = numeric::Finite(b * b - 4.0 * a * c);
    if (discriminant < 0.0 && -discriminant <= kRounding * b * b)
        return {numeric::CheckedDivide(-b, 2.0 * a)};
    const numeric::QuadraticRoots roots = numeric::QuadRoots(a, b, c);
    if (!roots.real)
        return {};
    if (roots.first == roots.second)
        return {roots.first};
    return {roots.first, roots.second};
}

std::vector<double> SquareRootsOfSum(const std::vector<double>& terms) {
    double sum = 0.0;
    double largest = 0.0;
    for (const double term : terms) {
        sum += term;
        largest = std::max(largest, std::abs(term));
    }
    if (sum < 0.0 && -sum > kRounding * largest)
        return {};
    const double root = std::sqrt(std::max(0.0, numeric::Finite(sum)));
    return root == 0.0 ? std::vector{0.0} : std::vector{root, -root};
}

bool Cancels(const std::vector<double>& terms) {
    double sum = 0.0;
    double largest = 0.0;
    for (const double term : terms) {
        sum += term;
        largest = std::max(largest, std::abs(term));
    }
    return std::abs(sum) <= std::max(std::min(kLargestSum, kLargestPart * largest), kRoundingPart * largest);
}

bool IsSame(double a, double b) { return std::abs(a - b) <= kRounding * std::max(std::abs(a), std::abs(b)); }

double Difference(double a, double b) { return IsSame(a, b) ? 0.0 : a - b; }

}  // namespace tavrelo::mechanics::motion
