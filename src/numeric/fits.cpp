#include "numeric/fits.h"

#include <algorithm>
#include <cstddef>

#include "numeric/checked.h"
#include "numeric/linear_systems.h"

namespace tavrelo::numeric {

namespace {

void RequireSubscript(bool allowed, const char* detail) {
    if (!allowed) {
        throw RuntimeFailure(FailureCode::SubscriptRange, detail);
    }
}

void RequirePairs(std::span<const double> xs, std::span<const double> ys) {
    RequireSubscript(xs.size() == ys.size(), "lists of points");
}

/// Sums over the points of x^k, k = 0 to 2 degree, and of y x^k, k = 0 to degree.
struct PowerSums {
    std::vector<double> x;
    std::vector<double> yx;
};

PowerSums SumPowers(std::size_t degree, std::span<const double> xs, std::span<const double> ys) {
    PowerSums sums{std::vector<double>(2 * degree + 1), std::vector<double>(degree + 1)};
    for (std::size_t point = 0; point < xs.size(); ++point) {
        for (std::size_t k = 0; k < sums.x.size(); ++k) {
            const double power = CheckedPower(xs[point], static_cast<double>(k));
            sums.x[k] = CheckedAdd(sums.x[k], power);
            if (k <= degree) {
                sums.yx[k] = CheckedAdd(sums.yx[k], CheckedMultiply(ys[point], power));
            }
        }
    }
    return sums;
}

bool AllEqual(std::span<const double> values) {
    return std::all_of(values.begin(), values.end(), [&](double value) { return value == values.front(); });
}

}  // namespace

double PolyVal(std::span<const double> coefs, double x) {
    double value = 0.0;
    double power = 1.0;
    for (const double coef : coefs) {
        value += coef * power;
        power *= x;
    }
    return Finite(value);
}

std::optional<std::vector<double>> PolyFit(int degree, std::span<const double> xs,
                                           std::span<const double> ys) {
    RequirePairs(xs, ys);
    RequireSubscript(degree >= 0 && static_cast<std::size_t>(degree) < kLargestOrder, "degree of a fit");
    const auto n = static_cast<std::size_t>(degree) + 1;
    PowerSums sums = SumPowers(n - 1, xs, ys);
    SquareMatrix normal(n);
    for (std::size_t row = 0; row < n; ++row) {
        for (std::size_t column = 0; column < n; ++column) {
            normal(row, column) = sums.x[row + column];
        }
    }
    if (SolveLinear(normal, sums.yx) != LinearOutcome::Done) {
        return std::nullopt;
    }
    return std::move(sums.yx);
}

LineSums SumsOf(std::span<const double> xs, std::span<const double> ys) {
    RequirePairs(xs, ys);
    LineSums sums;
    for (std::size_t i = 0; i < xs.size(); ++i) {
        sums.x = CheckedAdd(sums.x, xs[i]);
        sums.y = CheckedAdd(sums.y, ys[i]);
        sums.xx = CheckedAdd(sums.xx, CheckedMultiply(xs[i], xs[i]));
        sums.yy = CheckedAdd(sums.yy, CheckedMultiply(ys[i], ys[i]));
        sums.xy = CheckedAdd(sums.xy, CheckedMultiply(xs[i], ys[i]));
    }
    const auto n = static_cast<double>(xs.size());
    sums.mean_x = CheckedDivide(sums.x, n);
    sums.mean_y = CheckedDivide(sums.y, n);
    return sums;
}

double Correlation(std::span<const double> xs, std::span<const double> ys) {
    const LineSums sums = SumsOf(xs, ys);
    // Equal numbers leave a spread of the size of rounding instead of 0.
    if (AllEqual(xs) || AllEqual(ys)) {
        ThrowDivisionByZero();
    }
    const auto n = static_cast<double>(xs.size());
    const double x_spread = Finite(sums.xx - sums.x * sums.x / n);
    const double y_spread = Finite(sums.yy - sums.y * sums.y / n);
    const double common = Finite(sums.xy - sums.x * sums.y / n);
    return CheckedDivide(common, CheckedSqrt(CheckedMultiply(x_spread, y_spread)));
}

CurveSamples SamplePolynomial(std::span<const double> coefs, std::span<const double> xs, int count) {
    RequireSubscript(!xs.empty() && count >= 2, "samples of a curve");
    const auto [least, largest] = std::minmax_element(xs.begin(), xs.end());
    const double range = CheckedSubtract(*largest, *least);
    CurveSamples samples;
    samples.xs.reserve(static_cast<std::size_t>(count));
    samples.ys.reserve(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
        const double x = *least + range * k / (count - 1);
        samples.xs.push_back(x);
        samples.ys.push_back(PolyVal(coefs, x));
    }
    return samples;
}

std::optional<std::vector<double>> LogarithmsOf(std::span<const double> values) {
    if (std::any_of(values.begin(), values.end(), [](double value) { return value <= 0.0; })) {
        return std::nullopt;
    }
    std::vector<double> logarithms(values.size());
    std::transform(values.begin(), values.end(), logarithms.begin(), CheckedLog);
    return logarithms;
}

}  // namespace tavrelo::numeric
