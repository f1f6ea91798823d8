#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "numeric/cash_karp.h"
#include "numeric/function_ref.h"
#include "numeric/ode_state.h"

namespace tavrelo::numeric {

/// The right side of y' = f(x, y) or y'' = f(x, y, y'): called with the list (x, y) or (x, y, y'). Fails with
/// a RuntimeFailure where it has no value.
using OdeFunction = FunctionRef<double(std::span<const double>)>;

/// Title and text of the box for TooManySteps.
inline constexpr std::string_view kTooManyStepsTitle = "OZU";
inline constexpr std::string_view kTooManySteps = "Demasiados pasos en la rutina ODEInt";

/// Settings of IntegrateOde: first and least step, and the accuracy when none is given.
inline constexpr double kOdeFirstStep = 0.1;
inline constexpr double kOdeLeastStep = 0.001;
inline constexpr double kOdeIntegralAccuracy = 1e-5;

// `order` is 1 or 2 throughout; the routines fail with what f fails with and with Overflow.

/// The derivatives of the state at x. Any other order leaves `dydx` untouched.
void OdeDerivs(OdeFunction f, int order, double x, const OdeState& y, OdeState& dydx);

struct CashKarpStep {
    OdeState y;
    OdeState error;  // embedded estimate, of fourth against fifth order
};
/// One Cash-Karp step of length h from (x, y), whose derivatives are `dydx`. Fails with SubscriptRange on any
/// other order.
CashKarpStep RKCK(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h);

/// One step with error control: shortens `h_try` until the error of each component is at most `eps` times its
/// scale, and moves x and y. There is no least step. Fails with DivisionByZero when a scale is 0.
ControlledStep RKQS(OdeFunction f, int order, OdeState& y, const OdeState& dydx, double& x, double h_try,
                    double eps, const OdeState& scale);

/// Integrates from x1 to x2, in either direction; `y` holds the start and receives the end. `h1` is the
/// length of the first step; a step below `h_min` is lifted to it and the integration goes on. After
/// kMostOdeSteps steps TooManySteps, and `y` still holds the start.
template <typename Function>
[[nodiscard]] OdeOutcome ODEInt(Function&& f, int order, OdeState& y, double x1, double x2, double eps,
                                double h1, double h_min) {
    return ComponentsOf(order) == 1 ? cash_karp::Walk<1>(f, y, x1, x2, eps, h1, h_min)
                                    : cash_karp::Walk<2>(f, y, x1, x2, eps, h1, h_min);
}

struct OdeIntegral {
    double value;  // 0 after TooManySteps
    OdeOutcome outcome;
};
/// The integral of f between a and b as the differential equation y' = f(x, y), y(a) = 0. Limits in falling
/// order are exchanged and the sign stays.
///
/// A density that is 0 at first and then jumps stops the integration: while y and y' are 0 no error is
/// tolerated, so no step passes the jump. It is then made from the other limit, with f mirrored; one that is
/// 0 at both ends gives TooManySteps.
template <typename Function>
OdeIntegral IntegrateOde(Function&& f, double a, double b, double eps = kOdeIntegralAccuracy) {
    const double low = std::min(a, b);
    const double high = std::max(a, b);
    const auto integrate_upward = [&](auto& density) -> OdeIntegral {
        OdeState y{};
        const OdeOutcome outcome = ODEInt(density, 1, y, low, high, eps, kOdeFirstStep, kOdeLeastStep);
        return {y[0], outcome};
    };
    const OdeIntegral from_left = integrate_upward(f);
    if (from_left.outcome == OdeOutcome::Done)
        return from_left;
    const auto mirrored = [&](std::span<const double> at) {
        const std::array<double, 2> place = {low + high - at[0], at[1]};
        return f(std::span<const double>(place));
    };
    return integrate_upward(mirrored);
}

/// One classical fourth-order Runge-Kutta step of length h from (x, y), whose derivatives are `dydx`.
OdeState RK4(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h);

/// What RKDumb passed through: x and both components of y, all lists of equal length (the second component is
/// 0 at order 1).
struct OdeTable {
    std::vector<double> x;
    std::array<std::vector<double>, kHighestOrder> y;
};
/// `steps` equal steps of RK4 from x1 to x2: steps + 1 points, fewer when x no longer moves (1e-8). Fails
/// with DivisionByZero for 0 steps; a negative number of them gives the start alone.
OdeTable RKDumb(OdeFunction f, int order, const OdeState& start, double x1, double x2, int steps);

}  // namespace tavrelo::numeric
