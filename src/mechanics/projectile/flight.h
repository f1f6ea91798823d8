#pragma once

#include <optional>

namespace tavrelo::mechanics::projectile {

// Gravity and what stands in the formulas for its half and its double. Lengths and times are in whatever
// units give it this value; y points up and angles are in degrees from +x towards +y.
inline constexpr double kGravity = 9.8;
inline constexpr double kHalfGravity = 4.9;
inline constexpr double kTwiceGravity = 19.6;
/// The square of gravity, which the equations in a squared speed bring in.
inline constexpr double kGravitySquared = 96.04;

/// A component, a cosine or a slope of at most this size counts as zero: the cosine of 90° is not exactly 0.
inline constexpr double kZero = 1e-8;
bool IsZero(double number);
/// Whether a direction is upright, so that its tangent has no value.
bool IsUpright(double degrees);

/// The instant and the place of a launch.
struct Start {
    double t = 0.0;
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Start&, const Start&) = default;
};

struct Velocity {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Velocity&, const Velocity&) = default;
};

/// Fails with Overflow.
double SpeedOf(const Velocity& velocity);
double DirectionOf(const Velocity& velocity);
Velocity FromSpeed(double speed, double degrees);

/// Where a projectile is, and how fast, at a time.
struct State {
    double t = 0.0;
    double x = 0.0;
    double y = 0.0;
    Velocity velocity;

    friend bool operator==(const State&, const State&) = default;
};

/// y = a x^2 + b x + c.
struct Parabola {
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;

    friend bool operator==(const Parabola&, const Parabola&) = default;
};

/// A motion without unknowns, its equations expanded around t = 0:
///   x = vx t + x_at_zero,  y = -4.9 t^2 + vy_at_zero t + y_at_zero,  vy = vy_at_zero - 9.8 t.
struct Flight {
    Start start;
    Velocity launch;  // at the start
    double x_at_zero = 0.0;
    double y_at_zero = 0.0;
    double vy_at_zero = 0.0;
    std::optional<Parabola> trajectory;  // none for an upright one

    friend bool operator==(const Flight&, const Flight&) = default;
};

/// Decimals to which the numbers of a flight are kept, at the least.
inline constexpr int kLeastWorkingDecimals = 6;
int WorkingDecimals(int decimals);

/// The flight from a start. Both components and the coefficients in t are rounded to the working decimals;
/// the trajectory comes from the rounded components and is not rounded, since its square coefficient is
/// small. Fails with Overflow.
Flight FlightFrom(const Start& start, const Velocity& launch, int decimals);

/// Fails with Overflow.
State StateAt(const Flight& flight, double t);
/// The time at which a flight that is not upright passes x. Fails with DivisionByZero on one that is.
double TimeAtX(const Flight& flight, double x);

/// Where the projectile comes back to the height that it has now: the same place of the parabola on the other
/// side of its top.
State OtherSide(const State& state);

/// Range on the level of the launch (with the sign of x), time of flight and height above it.
struct Reach {
    double range;
    double time;
    double height;
};
/// None unless it is thrown upward.
std::optional<Reach> ReachOf(const Velocity& launch);

}  // namespace tavrelo::mechanics::projectile
