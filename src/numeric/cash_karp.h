#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "numeric/checked.h"
#include "numeric/ode_state.h"

/// The steps of Cash and Karp and the walk that controls them, for any function: each stage waits for the one
/// before, so the function is compiled into the walk. `numeric/ode.h` is the way in.
namespace tavrelo::numeric::cash_karp {

// The step control of RKQS.
inline constexpr double kSafety = 0.9;
inline constexpr double kGrowPower = -0.2;
inline constexpr double kShrinkPower = -0.25;
/// Below this error the step grows by its largest factor: (5 / kSafety) to the power 1 / kGrowPower.
inline constexpr double kGrowthLimit = 0.000189;
inline constexpr double kLargestGrowth = 5.0;
inline constexpr double kShrinkLimit = 0.1;

/// Keeps the scale of a state that vanishes above 0.
inline constexpr double kScaleFloor = 1e-30;
// The published table of Cash and Karp: where each stage looks, how it mixes the slopes of those before it,
// the weights of the fifth order, and their difference from those of the fourth. Weights of 0 are left out.
inline constexpr double kNode2 = 0.2;
inline constexpr double kNode3 = 0.3;
inline constexpr double kNode4 = 0.6;
inline constexpr double kNode5 = 1.0;
inline constexpr double kNode6 = 0.875;
inline constexpr std::array kMixture2 = {0.2};
inline constexpr std::array kMixture3 = {3.0 / 40.0, 9.0 / 40.0};
inline constexpr std::array kMixture4 = {0.3, -0.9, 1.2};
inline constexpr std::array kMixture5 = {-11.0 / 54.0, 2.5, -70.0 / 27.0, 35.0 / 27.0};
inline constexpr std::array kMixture6 = {1631.0 / 55296.0, 175.0 / 512.0, 575.0 / 13824.0, 44275.0 / 110592.0,
                                         253.0 / 4096.0};
// Of the slopes 1, 3, 4, 6 and 1, 3, 4, 5, 6.
inline constexpr std::array kWeights = {37.0 / 378.0, 250.0 / 621.0, 125.0 / 594.0, 512.0 / 1771.0};
inline constexpr std::array kErrorWeights = {
    37.0 / 378.0 - 2825.0 / 27648.0, 250.0 / 621.0 - 18575.0 / 48384.0, 125.0 / 594.0 - 13525.0 / 55296.0,
    -277.0 / 14336.0, 512.0 / 1771.0 - 0.25};

/// The components in use of an OdeState. They are handed from step to step as numbers of their own: a pair
/// written in parts and read as one would stall the processor.
template <std::size_t kComponents>
using Components = std::array<double, kComponents>;

template <std::size_t kComponents>
Components<kComponents> Take(const OdeState& state) {
    Components<kComponents> components;
    std::copy_n(state.begin(), kComponents, components.begin());
    return components;
}
template <std::size_t kComponents>
OdeState Whole(const Components<kComponents>& components) {
    OdeState state{};
    std::copy(components.begin(), components.end(), state.begin());
    return state;
}

template <std::size_t kComponents, std::size_t kCount, std::size_t... kIndex, typename... Earlier>
Components<kComponents> Advance(const Components<kComponents>& y, double h,
                                const std::array<double, kCount>& weights, std::index_sequence<kIndex...>,
                                const Components<kComponents>& last, const Earlier&... earlier) {
    const double last_weight = h * weights.back();
    Components<kComponents> moved = y;
    for (std::size_t i = 0; i < kComponents; ++i) {
        if constexpr (kCount > 1) {
            moved[i] += h * (... + (weights[kIndex] * earlier[i]));
        }
        moved[i] = Finite(moved[i] + last_weight * last[i]);
    }
    return moved;
}
/// y + h times the sum of the slopes under their weights, the last slope before the others: the stages wait
/// for each other, so as little as possible is left to do once it is known.
template <std::size_t kComponents, std::size_t kCount, typename... Earlier>
Components<kComponents> Advance(const Components<kComponents>& y, double h,
                                const std::array<double, kCount>& weights,
                                const Components<kComponents>& last, const Earlier&... earlier) {
    static_assert(sizeof...(Earlier) + 1 == kCount);
    return Advance(y, h, weights, std::index_sequence_for<Earlier...>(), last, earlier...);
}

/// h times the sum of the slopes under their weights; it nearly cancels, so nothing is added before its end.
template <std::size_t kComponents, std::size_t... kIndex, typename... Slopes>
Components<kComponents> ErrorOf(double h, std::index_sequence<kIndex...>,
                                const Components<kComponents>& first, const Slopes&... others) {
    Components<kComponents> error;
    for (std::size_t i = 0; i < kComponents; ++i) {
        error[i] =
            Finite(h * ((kErrorWeights[0] * first[i]) + ... + (kErrorWeights[kIndex + 1] * others[i])));
    }
    return error;
}

template <std::size_t kComponents, typename Function>
Components<kComponents> Slope(Function& f, double x, const Components<kComponents>& y) {
    if constexpr (kComponents == 1) {
        const std::array<double, 2> arguments = {x, y[0]};
        return {Finite(f(std::span<const double>(arguments)))};
    } else {
        const std::array<double, 3> arguments = {x, y[0], y[1]};
        return {y[1], Finite(f(std::span<const double>(arguments)))};
    }
}

template <std::size_t kComponents>
struct Step {
    Components<kComponents> y;
    Components<kComponents> error;
};

template <std::size_t kComponents, typename Function>
Step<kComponents> TakeStep(Function& f, const Components<kComponents>& y, const Components<kComponents>& k1,
                           double x, double h) {
    const auto k2 = Slope<kComponents>(f, x + kNode2 * h, Advance(y, h, kMixture2, k1));
    const auto k3 = Slope(f, x + kNode3 * h, Advance(y, h, kMixture3, k2, k1));
    const auto k4 = Slope(f, x + kNode4 * h, Advance(y, h, kMixture4, k3, k1, k2));
    const auto k5 = Slope(f, x + kNode5 * h, Advance(y, h, kMixture5, k4, k1, k2, k3));
    const auto k6 = Slope(f, x + kNode6 * h, Advance(y, h, kMixture6, k5, k1, k2, k3, k4));
    return {Advance(y, h, kWeights, k6, k1, k3, k4),
            ErrorOf(h, std::make_index_sequence<kErrorWeights.size() - 1>(), k1, k3, k4, k5, k6)};
}

/// The largest error of a component against what is allowed; above 1 the step was too long.
template <std::size_t kComponents>
double ErrorRatio(const Components<kComponents>& error, const Components<kComponents>& scale, double eps) {
    double largest = 0.0;
    for (std::size_t i = 0; i < kComponents; ++i) {
        largest = std::max(largest, std::abs(CheckedDivide(error[i], scale[i])));
    }
    return CheckedDivide(largest, eps);
}

inline double Shortened(double h, double error_ratio) {
    const double shorter = kSafety * h * std::pow(error_ratio, kShrinkPower);
    // The limit looks at the new step, so it takes hold of negative steps only.
    return kShrinkLimit * shorter > shorter ? kShrinkLimit * shorter : shorter;
}

inline double Lengthened(double h, double error_ratio) {
    return error_ratio > kGrowthLimit ? kSafety * h * std::pow(error_ratio, kGrowPower) : kLargestGrowth * h;
}

template <std::size_t kComponents>
Components<kComponents> ScaleOf(const Components<kComponents>& y, const Components<kComponents>& dydx,
                                double h) {
    Components<kComponents> scale;
    for (std::size_t i = 0; i < kComponents; ++i) {
        scale[i] = Finite(std::abs(y[i]) + std::abs(h * dydx[i]) + kScaleFloor);
    }
    return scale;
}

template <std::size_t kComponents, typename Function>
ControlledStep TakeControlledStep(Function& f, Components<kComponents>& y,
                                  const Components<kComponents>& dydx, double& x, double h, double eps,
                                  const Components<kComponents>& scale) {
    while (true) {
        const Step<kComponents> step = TakeStep(f, y, dydx, x, h);
        const double error_ratio = ErrorRatio(step.error, scale, eps);
        if (error_ratio <= 1.0) {
            x = CheckedAdd(x, h);
            y = step.y;
            return {h, Lengthened(h, error_ratio)};
        }
        h = Shortened(h, error_ratio);
    }
}

/// The walk of ODEInt.
template <std::size_t kComponents, typename Function>
OdeOutcome Walk(Function& f, OdeState& y, double x1, double x2, double eps, double h1, double h_min) {
    const double range = CheckedSubtract(x2, x1);
    double x = x1;
    double h = std::copysign(h1, range);
    auto state = Take<kComponents>(y);
    for (int step = 0; step < kMostOdeSteps; ++step) {
        const auto dydx = Slope(f, x, state);
        const auto scale = ScaleOf(state, dydx, h);
        if ((x + h - x2) * (x + h - x1) > 0.0) {
            h = x2 - x;
        }
        const ControlledStep taken = TakeControlledStep(f, state, dydx, x, h, eps, scale);
        if ((x - x2) * range >= 0.0) {
            std::copy(state.begin(), state.end(), y.begin());
            return OdeOutcome::Done;
        }
        h = std::abs(taken.next) < h_min ? std::copysign(h_min, range) : taken.next;
    }
    return OdeOutcome::TooManySteps;
}

}  // namespace tavrelo::numeric::cash_karp
