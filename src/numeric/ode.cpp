#include "numeric/ode.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::numeric {

namespace {

using cash_karp::Components;
using cash_karp::Slope;
using cash_karp::Take;
using cash_karp::Whole;

/// A step of RKDumb that moves x by no more than this ends the walk.
constexpr double kStandstill = 1e-8;

template <std::size_t kComponents>
Components<kComponents> Moved(const Components<kComponents>& y, double h,
                              const Components<kComponents>& slope) {
    Components<kComponents> moved;
    for (std::size_t i = 0; i < kComponents; ++i) {
        moved[i] = Finite(y[i] + h * slope[i]);
    }
    return moved;
}

template <std::size_t kComponents>
Components<kComponents> ClassicalStep(OdeFunction f, const Components<kComponents>& y,
                                      const Components<kComponents>& dydx, double x, double h) {
    const double half = 0.5 * h;
    const auto k2 = Slope(f, x + half, Moved(y, half, dydx));
    const auto k3 = Slope(f, x + half, Moved(y, half, k2));
    const auto k4 = Slope(f, x + h, Moved(y, h, k3));
    Components<kComponents> sum;
    for (std::size_t i = 0; i < kComponents; ++i) {
        sum[i] = dydx[i] + 2.0 * (k2[i] + k3[i]) + k4[i];
    }
    return Moved(y, h / 6.0, sum);
}

template <std::size_t kComponents>
CashKarpStep CashKarp(OdeFunction f, const OdeState& y, const OdeState& dydx, double x, double h) {
    const auto step = cash_karp::TakeStep(f, Take<kComponents>(y), Take<kComponents>(dydx), x, h);
    return {Whole<kComponents>(step.y), Whole<kComponents>(step.error)};
}

template <std::size_t kComponents>
ControlledStep Controlled(OdeFunction f, OdeState& y, const OdeState& dydx, double& x, double h, double eps,
                          const OdeState& scale) {
    auto state = Take<kComponents>(y);
    const ControlledStep step =
        cash_karp::TakeControlledStep(f, state, Take<kComponents>(dydx), x, h, eps, Take<kComponents>(scale));
    std::copy(state.begin(), state.end(), y.begin());
    return step;
}

template <std::size_t kComponents>
OdeState Classical(OdeFunction f, const OdeState& y, const OdeState& dydx, double x, double h) {
    return Whole<kComponents>(ClassicalStep(f, Take<kComponents>(y), Take<kComponents>(dydx), x, h));
}

}  // namespace

void OdeDerivs(OdeFunction f, int order, double x, const OdeState& y, OdeState& dydx) {
    if (order == 1) {
        dydx[0] = Slope(f, x, Take<1>(y))[0];
    } else if (order == 2) {
        dydx = Slope(f, x, y);
    }
}

CashKarpStep RKCK(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h) {
    return ComponentsOf(order) == 1 ? CashKarp<1>(f, y, dydx, x, h) : CashKarp<2>(f, y, dydx, x, h);
}

ControlledStep RKQS(OdeFunction f, int order, OdeState& y, const OdeState& dydx, double& x, double h_try,
                    double eps, const OdeState& scale) {
    return ComponentsOf(order) == 1 ? Controlled<1>(f, y, dydx, x, h_try, eps, scale)
                                    : Controlled<2>(f, y, dydx, x, h_try, eps, scale);
}

OdeState RK4(OdeFunction f, int order, const OdeState& y, const OdeState& dydx, double x, double h) {
    return ComponentsOf(order) == 1 ? Classical<1>(f, y, dydx, x, h) : Classical<2>(f, y, dydx, x, h);
}

OdeTable RKDumb(OdeFunction f, int order, const OdeState& start, double x1, double x2, int steps) {
    const double h = CheckedDivide(CheckedSubtract(x2, x1), steps);
    OdeTable table;
    table.x.reserve(static_cast<std::size_t>(std::max(steps, 0)) + 1);
    for (std::vector<double>& component : table.y) {
        component.reserve(table.x.capacity());
    }
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
