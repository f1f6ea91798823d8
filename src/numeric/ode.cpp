#include "numeric/ode.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::numeric {

namespace {

// The step control of RKQS.
constexpr double kSafety = 0.9;
constexpr double kGrowPower = -0.2;
constexpr double kShrinkPower = -0.25;
/// Below this error the step grows by its largest factor: (5 / kSafety) to the power 1 / kGrowPower.
constexpr double kGrowthLimit = 0.000189;
constexpr double kLargestGrowth = 5.0;
constexpr double kShrinkLimit = 0.1;

/// Keeps the scale of a state that vanishes above 0.
constexpr double kScaleFloor = 1e-30;
/// A step of RKDumb that moves x by no more than this ends the walk.
constexpr double kStandstill = 1e-8;

// The published table of Cash and Karp: where each stage looks, how it mixes the slopes of those before it,
// the weights of the fifth order, and their difference from those of the fourth.
constexpr std::size_t kStages = 6;
constexpr std::array<double, kStages> kNodes = {0.0, 0.2, 0.3, 0.6, 1.0, 0.875};
constexpr std::array<double, 1> kMixture1 = {0.2};
constexpr std::array<double, 2> kMixture2 = {3.0 / 40.0, 9.0 / 40.0};
constexpr std::array<double, 3> kMixture3 = {0.3, -0.9, 1.2};
constexpr std::array<double, 4> kMixture4 = {-11.0 / 54.0, 2.5, -70.0 / 27.0, 35.0 / 27.0};
constexpr std::array<double, 5> kMixture5 = {1631.0 / 55296.0, 175.0 / 512.0, 575.0 / 13824.0,
                                             44275.0 / 110592.0, 253.0 / 4096.0};
constexpr std::array<double, kStages> kWeights = {37.0 / 378.0,  0.0, 250.0 / 621.0,
                                                  125.0 / 594.0, 0.0, 512.0 / 1771.0};
constexpr std::array<double, kStages> kErrorWeights = {37.0 / 378.0 - 2825.0 / 27648.0,
                                                       0.0,
                                                       250.0 / 621.0 - 18575.0 / 48384.0,
                                                       125.0 / 594.0 - 13525.0 / 55296.0,
                                                       -277.0 / 14336.0,
                                                       512.0 / 1771.0 - 0.25};

std::size_t ComponentsOf(int order) {
    if (order < 1 || order > static_cast<int>(kHighestOrder)) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "order of a differential equation");
    }
    return static_cast<std::size_t>(order);
}

/// y + h times the sum of the first slopes, as many as weights.
template <std::size_t kCount>
OdeState Advance(std::size_t components, const OdeState& y, double h,
                 const std::array<double, kCount>& weights, const std::array<OdeState, kStages>& slopes) {
    OdeState moved = y;
    for (std::size_t i = 0; i < components; ++i) {
        double sum = weights[0] * slopes[0][i];
        for (std::size_t stage = 1; stage < kCount; ++stage) {
            sum += weights[stage] * slopes[stage][i];
        }
        moved[i] = Finite(y[i] + h * sum);
    }
    return moved;
}

/// The largest error of a component against what is allowed; above 1 the step was too long.
double ErrorRatio(std::size_t components, const OdeState& error, const OdeState& scale, double eps) {
    double largest = 0.0;
    for (std::size_t i = 0; i < components; ++i) {
        largest = std::max(largest, std::abs(CheckedDivide(error[i], scale[i])));
    }
    return CheckedDivide(largest, eps);
}

double Shortened(double h, double error_ratio) {
    const double shorter = kSafety * h * std::pow(error_ratio, kShrinkPower);
    // The limit looks at the new step, so it takes hold of negative steps only.
    return kShrinkLimit * shorter > shorter ? kShrinkLimit * shorter : shorter;
}

double Lengthened(double h, double error_ratio) {
    return error_ratio > kGrowthLimit ? kSafety * h * std::pow(error_ratio, kGrowPower) : kLargestGrowth * h;
}

OdeState ScaleOf(std::size_t components, const OdeState& y, const OdeState& dydx, double h) {
    OdeState scale{};
    for (std::size_t i = 0; i < components; ++i) {
        scale[i] = Finite(std::abs(y[i]) + std::abs(h * dydx[i]) + kScaleFloor);
    }
    return scale;
}

OdeState Moved(std::size_t components, const OdeState& y, double h, const OdeState& slope) {
    OdeState moved = y;
    for (std::size_t i = 0; i < components; ++i) {
        moved[i] = Finite(y[i] + h * slope[i]);
    }
    return moved;
}

}  // namespace

void OdeDerivs(OdeFunction f, int order, double x, const OdeState& y, OdeState& dydx) {
    const std::array<double, 1 + kHighestOrder> arguments = {x, y[0], y[1]};
    if (order == 1) {
        dydx[0] = Finite(f(std::span(arguments).first(2)));
    } else if (order == 2) {
        dydx = {y[1], Finite(f(arguments))};
    }
}

CashKarpStep RKCK(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h) {
    const std::size_t components = ComponentsOf(order);
    std::array<OdeState, kStages> slopes{dydx};
    const auto evaluate = [&](std::size_t stage, const auto& mixture) {
        const OdeState inside = Advance(components, y, h, mixture, slopes);
        OdeDerivs(f, order, x + kNodes[stage] * h, inside, slopes[stage]);
    };
    evaluate(1, kMixture1);
    evaluate(2, kMixture2);
    evaluate(3, kMixture3);
    evaluate(4, kMixture4);
    evaluate(5, kMixture5);
    return {Advance(components, y, h, kWeights, slopes), Advance(components, {}, h, kErrorWeights, slopes)};
}

ControlledStep RKQS(OdeFunction f, int order, OdeState& y, const OdeState& dydx, double& x, double h_try,
                    double eps, const OdeState& scale) {
    const std::size_t components = ComponentsOf(order);
    double h = h_try;
    CashKarpStep step = RKCK(f, order, y, dydx, x, h);
    double error_ratio = ErrorRatio(components, step.error, scale, eps);
    while (error_ratio > 1.0) {
        h = Shortened(h, error_ratio);
        step = RKCK(f, order, y, dydx, x, h);
        error_ratio = ErrorRatio(components, step.error, scale, eps);
    }
    x = CheckedAdd(x, h);
    y = step.y;
    return {h, Lengthened(h, error_ratio)};
}

OdeOutcome ODEInt(OdeFunction f, int order, OdeState& y, double x1, double x2, double eps, double h1,
                  double h_min) {
    const std::size_t components = ComponentsOf(order);
    const double range = CheckedSubtract(x2, x1);
    double x = x1;
    double h = std::copysign(h1, range);
    OdeState state = y;
    OdeState dydx{};
    for (int step = 0; step < kMostOdeSteps; ++step) {
        OdeDerivs(f, order, x, state, dydx);
        const OdeState scale = ScaleOf(components, state, dydx, h);
        if ((x + h - x2) * (x + h - x1) > 0.0) {
            h = x2 - x;
        }
        const ControlledStep taken = RKQS(f, order, state, dydx, x, h, eps, scale);
        if ((x - x2) * range >= 0.0) {
            y = state;
            return OdeOutcome::Done;
        }
        h = std::abs(taken.next) < h_min ? std::copysign(h_min, range) : taken.next;
    }
    return OdeOutcome::TooManySteps;
}

namespace {

/// The integral of f from `low` up to `high`, made from the left.
OdeIntegral IntegrateUpward(OdeFunction f, double low, double high, double eps) {
    OdeState y{};
    const OdeOutcome outcome = ODEInt(f, 1, y, low, high, eps, kOdeFirstStep, kOdeLeastStep);
    return {y[0], outcome};
}

}  // namespace

OdeIntegral IntegrateOde(OdeFunction f, double a, double b, double eps) {
    const double low = std::min(a, b);
    const double high = std::max(a, b);
    const OdeIntegral from_left = IntegrateUpward(f, low, high, eps);
    if (from_left.outcome == OdeOutcome::Done)
        return from_left;
    const auto mirrored = [&](std::span<const double> at) {
        const std::array<double, 2> place = {low + high - at[0], at[1]};
        return f(place);
    };
    return IntegrateUpward(mirrored, low, high, eps);
}

OdeState RK4(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h) {
    const std::size_t components = ComponentsOf(order);
    const double half = 0.5 * h;
    OdeState k2{};
    OdeState k3{};
    OdeState k4{};
    OdeDerivs(f, order, x + half, Moved(components, y, half, dydx), k2);
    OdeDerivs(f, order, x + half, Moved(components, y, half, k2), k3);
    OdeDerivs(f, order, x + h, Moved(components, y, h, k3), k4);
    OdeState sum{};
    for (std::size_t i = 0; i < components; ++i) {
        sum[i] = dydx[i] + 2.0 * (k2[i] + k3[i]) + k4[i];
    }
    return Moved(components, y, h / 6.0, sum);
}

OdeTable RKDumb(OdeFunction f, int order, const OdeState& start, double x1, double x2, int steps) {
    const double h = CheckedDivide(CheckedSubtract(x2, x1), steps);
    OdeTable table;
    const auto append = [&table](double x, const OdeState& y) {
        table.x.push_back(x);
        for (std::size_t i = 0; i < kHighestOrder; ++i) {
            table.y[i].push_back(y[i]);
        }
    };
    double x = x1;
    OdeState y = start;
    OdeState dydx{};
    append(x, y);
    for (int k = 0; k < steps; ++k) {
        OdeDerivs(f, order, x, y, dydx);
        y = RK4(f, order, y, dydx, x, h);
        if (NearEq(x + h, x, kStandstill)) {
            break;
        }
        x += h;
        append(x, y);
    }
    return table;
}

}  // namespace tavrelo::numeric
