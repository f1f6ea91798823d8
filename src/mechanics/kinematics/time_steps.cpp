#include "mechanics/kinematics/time_steps.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/derivatives.h"

namespace tavrelo::mechanics::kinematics {
namespace {

constexpr double kLongestFirstStep = 0.5;
constexpr double kFirstStepPart = 10;
constexpr double kSecondStepPart = 100;
constexpr double kShorterSteps = 10;
/// Apart by more than this part of their size, two derivatives are not the same.
constexpr double kSameSlope = 1e-7;

constexpr std::size_t kStencil = 5;
using Weights = std::array<double, kStencil>;
/// Weights of the five-point formulas by the place of the point in its stencil, over twelve steps.
constexpr std::array<Weights, kStencil> kSlopeWeights = {{
    {-25, 48, -36, 16, -3},
    {-3, -10, 18, -6, 1},
    {1, -8, 0, 8, -1},
    {-1, 6, -18, 10, 3},
    {3, -16, 36, -48, 25},
}};
constexpr double kSlopeDivisor = 12;

}  // namespace

double DerivativeStep(double t) { return std::min(kLongestFirstStep, std::abs(t) / kFirstStepPart); }

double SlopeAt(numeric::RealFunction f, double t, double first_step) {
    const double slope = numeric::Derivative(f, t, first_step).value;
    const double nearer = numeric::Derivative(f, t, first_step / kShorterSteps).value;
    return std::abs(slope - nearer) <= kSameSlope * (1 + std::abs(nearer)) ? slope : nearer;
}

double SecondDerivativeStep(double t) { return t / kSecondStepPart; }

void RequireSpan(double t0, double t1) {
    if (t0 == t1)
        throw numeric::RuntimeFailure(numeric::FailureCode::OutOfDomain, "graph of one instant");
}

std::vector<double> EqualSteps(double t0, double t1, int steps) {
    const double span = numeric::CheckedSubtract(t1, t0);
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(steps) + 1);
    for (int k = 0; k <= steps; ++k)
        times.push_back(t0 + span * k / steps);
    return times;
}

std::vector<double> SlopeOf(const std::vector<double>& column, double step) {
    if (column.size() < kStencil)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "column too short for a slope");
    std::vector<double> slopes;
    slopes.reserve(column.size());
    for (std::size_t k = 0; k < column.size(); ++k) {
        const std::size_t first = std::min(k < 2 ? 0 : k - 2, column.size() - kStencil);
        const Weights& weights = kSlopeWeights[k - first];
        double sum = 0;
        for (std::size_t i = 0; i < kStencil; ++i)
            sum += weights[i] * column[first + i];
        slopes.push_back(numeric::CheckedDivide(sum, kSlopeDivisor * step));
    }
    return slopes;
}

}  // namespace tavrelo::mechanics::kinematics
