#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "numeric/function_ref.h"

namespace tavrelo::numeric {

/// Highest order of the differential equations.
inline constexpr std::size_t kHighestOrder = 2;

/// The function value y[0] and, at order 2, its derivative y[1]. At order 1 the second element is not used.
using OdeState = std::array<double, kHighestOrder>;

/// The right side of y' = f(x, y) or y'' = f(x, y, y'): called with the list (x, y) or (x, y, y'). Fails with
/// a RuntimeFailure where it has no value.
using OdeFunction = FunctionRef<double(std::span<const double>)>;

enum class OdeOutcome { Done, TooManySteps };
/// Title and text of the box for TooManySteps.
inline constexpr std::string_view kTooManyStepsTitle = "OZU";
inline constexpr std::string_view kTooManySteps = "Demasiados pasos en la rutina ODEInt";

/// Settings of IntegrateOde: first and least step, and the accuracy when none is given.
inline constexpr double kOdeFirstStep = 0.1;
inline constexpr double kOdeLeastStep = 0.001;
inline constexpr double kOdeIntegralAccuracy = 1e-5;
/// Steps after which ODEInt gives up.
inline constexpr int kMostOdeSteps = 1000;

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

struct ControlledStep {
    double done;  // length of the step that was accurate enough
    double next;  // length to try next
};
/// One step with error control: shortens `h_try` until the error of each component is at most `eps` times its
/// scale, and moves x and y. There is no least step. Fails with DivisionByZero when a scale is 0.
ControlledStep RKQS(OdeFunction f, int order, OdeState& y, const OdeState& dydx, double& x, double h_try,
                    double eps, const OdeState& scale);

/// Integrates from x1 to x2, in either direction; `y` holds the start and receives the end. `h1` is the
/// length of the first step; a step below `h_min` is lifted to it and the integration goes on. After
/// kMostOdeSteps steps TooManySteps, and `y` still holds the start.
[[nodiscard]] OdeOutcome ODEInt(OdeFunction f, int order, OdeState& y, double x1, double x2, double eps,
                                double h1, double h_min);

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
OdeIntegral IntegrateOde(OdeFunction f, double a, double b, double eps = kOdeIntegralAccuracy);

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
