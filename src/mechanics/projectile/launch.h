#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/projectile/equation_line.h"
#include "mechanics/projectile/flight.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::projectile {

/// How the speed of a point is given: magnitude and direction, or components.
enum class SpeedMode { Polar, Components };

/// The launch of a mover as it was given. `first` is the speed v0 or the component v0x and `second` the angle
/// or the component v0y, by the mode; what is absent is a parameter of the equations.
struct Launch {
    SpeedMode mode = SpeedMode::Polar;
    std::optional<Start> start;  // a launch needs it
    std::optional<double> first;
    std::optional<double> second;

    friend bool operator==(const Launch&, const Launch&) = default;
};

/// What the equations of a mover leave unknown.
enum class LaunchKind {
    None,  // there are no equations
    Complete,
    UnknownSpeed,
    UnknownAngle,
    UnknownSpeedAndAngle,
    UnknownVx,
    UnknownVy,
};

/// The equations of one mover. A value: planting makes a new one.
struct Equations {
    LaunchKind kind = LaunchKind::None;
    Launch launch;
    Flight flight;  // of a complete launch

    bool IsComplete() const { return kind == LaunchKind::Complete; }
    friend bool operator==(const Equations&, const Equations&) = default;
};

/// The flight of complete equations from the launch as it was given, nothing rounded: whether two movers
/// meet, or a trajectory touches a line, must not hang on the sixth place.
Flight ExactFlight(const Equations& equations);

/// The letters of mover 1 or 2, in markup.
struct Symbols {
    std::string_view x;
    std::string_view y;
    std::string_view v;

    std::string InitialSpeed() const { return std::string(v) + "!0"; }
    std::string InitialVx() const { return InitialSpeed() + "!x"; }
    std::string InitialVy() const { return InitialSpeed() + "!y"; }
    std::string Vx() const { return std::string(v) + "!x"; }
    std::string Vy() const { return std::string(v) + "!y"; }
};
/// Small letters for mover 1, capitals for mover 2.
const Symbols& SymbolsOf(int mover);

/// Lines of equations that a launch puts on the board: x, y, vx, vy, trajectory.
inline constexpr int kLinesPerMover = 5;

/// A launch worked out.
struct Planted {
    Equations equations;
    std::vector<std::string> report;  // in the markup of rich boxes
    std::vector<EquationLine> board;  // kLinesPerMover of them
};

/// Sets up the equations of a launch, as the seven kinds of LaunchKind without "none". Refused are a launch
/// without its start, one by components without any, and a speed that is zero or negative. Fails with
/// Overflow.
std::variant<text::Refusal, Planted> PlantLaunch(int mover, const Launch& launch, int decimals);

}  // namespace tavrelo::mechanics::projectile
