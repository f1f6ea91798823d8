#include "numeric/derivatives.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

constexpr std::size_t kColumns = 10;
constexpr double kStepRatio = 1.4;
/// The square of the ratio, as the program has always rounded it.
constexpr double kStepRatioSquared = 1.9599999999999997;
/// A diagonal element worse than the best error by this factor ends the extrapolation.
constexpr double kSafety = 2.0;

double CentralDifference(RealFunction f, double x, double h) {
    return CheckedDivide(f(x + h) - f(x - h), 2.0 * h);
}

/// One column of the tableau: the difference of one step, then its extrapolations of growing order.
using Column = std::array<double, kColumns>;

}  // namespace

DerivativeEstimate Derivative(RealFunction f, double x, double h) {
    Column last{CentralDifference(f, x, h)};
    DerivativeEstimate best{last[0], std::numeric_limits<double>::max()};
    for (std::size_t i = 1; i < kColumns; ++i) {
        h /= kStepRatio;
        Column column{CentralDifference(f, x, h)};
        double factor = kStepRatioSquared;
        for (std::size_t j = 1; j <= i; ++j) {
            column[j] = Finite((column[j - 1] * factor - last[j - 1]) / (factor - 1.0));
            factor *= kStepRatioSquared;
            const double error =
                std::max(std::abs(column[j] - column[j - 1]), std::abs(column[j] - last[j - 1]));
            if (error <= best.error) {
                best = {column[j], error};
            }
        }
        if (std::abs(column[i] - last[i - 1]) >= kSafety * best.error) {
            break;
        }
        last = column;
    }
    return best;
}

double SecondDeriv(RealFunction f, double x, double h) {
    return SecondDifference({f(x + 2.0 * h), f(x + h), f(x), f(x - h), f(x - 2.0 * h)}, h);
}

double SecondDifference(const std::array<double, 5>& values, double h) {
    const double sum = -values[0] + 16.0 * values[1] - 30.0 * values[2] + 16.0 * values[3] - values[4];
    return CheckedDivide(sum, 12.0 * h * h);
}

}  // namespace tavrelo::numeric
