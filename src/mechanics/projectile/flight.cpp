#include "mechanics/projectile/flight.h"

#include <algorithm>
#include <cmath>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {

using numeric::CheckedDivide;
using numeric::Finite;

namespace {

Parabola TrajectoryOf(const Start& start, const Velocity& launch) {
    const double slope = CheckedDivide(launch.y, launch.x);
    const double k = CheckedDivide(kHalfGravity, launch.x * launch.x);
    return {-k, Finite(slope + 2.0 * k * start.x), Finite(start.y - start.x * slope - k * start.x * start.x)};
}

}  // namespace

bool IsZero(double number) { return std::abs(number) <= kZero; }

bool IsUpright(double degrees) { return IsZero(numeric::CosD(degrees)); }

double SpeedOf(const Velocity& velocity) { return numeric::Hypot(velocity.x, velocity.y); }

double DirectionOf(const Velocity& velocity) { return numeric::AngleOf(velocity.x, velocity.y); }

Velocity FromSpeed(double speed, double degrees) {
    return {Finite(speed * numeric::CosD(degrees)), Finite(speed * numeric::SinD(degrees))};
}

int WorkingDecimals(int decimals) { return std::max(decimals, kLeastWorkingDecimals); }

Flight FlightFrom(const Start& start, const Velocity& launch, int decimals) {
    const auto kept = [places = WorkingDecimals(decimals)](double number) {
        return text::RoundTo(number, places);
    };
    Flight flight;
    flight.start = start;
    flight.launch = {IsZero(launch.x) ? 0.0 : kept(launch.x), kept(launch.y)};
    const auto& [vx, vy] = flight.launch;
    flight.x_at_zero = kept(start.x - vx * start.t);
    flight.vy_at_zero = kept(vy + kGravity * start.t);
    flight.y_at_zero = kept(start.y - vy * start.t - kHalfGravity * start.t * start.t);
    if (vx != 0.0)
        flight.trajectory = TrajectoryOf(start, flight.launch);
    return flight;
}

State StateAt(const Flight& flight, double t) {
    return {t,
            Finite(flight.launch.x * t + flight.x_at_zero),
            Finite((flight.vy_at_zero - kHalfGravity * t) * t + flight.y_at_zero),
            {flight.launch.x, Finite(flight.vy_at_zero - kGravity * t)}};
}

double TimeAtX(const Flight& flight, double x) {
    return Finite(CheckedDivide(x - flight.start.x, flight.launch.x) + flight.start.t);
}

State OtherSide(const State& state) {
    const double span = 2.0 * state.velocity.y / kGravity;
    return {Finite(state.t + span),
            Finite(state.x + state.velocity.x * span),
            Finite(state.y + state.velocity.y * span - kHalfGravity * span * span),
            {state.velocity.x, -state.velocity.y}};
}

std::optional<Reach> ReachOf(const Velocity& launch) {
    if (!(launch.y > 0.0))
        return std::nullopt;
    return Reach{Finite(2.0 * launch.x * launch.y / kGravity), launch.y / kHalfGravity,
                 Finite(launch.y * launch.y / kTwiceGravity)};
}

}  // namespace tavrelo::mechanics::projectile
