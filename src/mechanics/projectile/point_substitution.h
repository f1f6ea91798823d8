#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/projectile/launch.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::projectile {

/// The datum that completes a point of a flight without unknowns.
enum class Datum { Time, X, Y, Vy, Angle, Increments, Speed };

/// One datum of a point. `value` is the time, coordinate, component, angle or speed; the increments are of
/// the time and of the height from another point.
struct PointDatum {
    Datum datum = Datum::Time;
    double value = 0.0;
    double time_increment = 0.0;
    double height_increment = 0.0;
};

/// Where the flight meets a datum: one state, or two in the order of the roots, the later time of a rising
/// throw first, times before the launch included. By increments it is the end of the interval; its start lies
/// `time_increment` before. An angle stands for its tangent, so the opposite direction meets it too. A
/// refusal when there is none. Fails with Overflow.
std::variant<text::Refusal, std::vector<State>> StatesWith(const Flight& flight, const PointDatum& datum);

/// "t!1 = 2, x!1 = 30" and a second line with y and the velocity as the mode says: a state as the point of
/// that number.
std::vector<std::string> StateLines(int mover, int point, const State& state, SpeedMode mode, int decimals);

}  // namespace tavrelo::mechanics::projectile
