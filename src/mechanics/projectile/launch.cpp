#include "mechanics/projectile/launch.h"

#include <array>

#include "mechanics/projectile/launch_lines.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

constexpr std::array<Symbols, 2> kSymbols = {{{"x", "y", "v"}, {"X", "Y", "V"}}};

constexpr std::string_view kNoStart = "Debes dar el tiempo t0 y la posición inicial (x0, y0)";
constexpr std::string_view kNoSpeed = "La velocidad inicial no puede ser cero.";
constexpr std::string_view kNegativeSpeed =
    "Magnitud no válida (cero o negativa) para la velocidad de lanzamiento.";
constexpr std::string_view kNoComponent =
    "Trabaja con las ecuaciones en términos de la velocidad inicial y el ángulo de lanzamiento.";

/// What is wrong with a launch; empty when nothing is.
std::string_view FaultOf(const Launch& launch) {
    if (!launch.start)
        return kNoStart;
    if (launch.mode == SpeedMode::Components)
        return launch.first || launch.second ? std::string_view() : kNoComponent;
    if (launch.first && *launch.first == 0.0)
        return kNoSpeed;
    return launch.first && *launch.first < 0.0 ? kNegativeSpeed : std::string_view();
}

LaunchKind KindOf(const Launch& launch) {
    const bool polar = launch.mode == SpeedMode::Polar;
    if (launch.first && launch.second)
        return LaunchKind::Complete;
    if (launch.first)
        return polar ? LaunchKind::UnknownAngle : LaunchKind::UnknownVy;
    if (launch.second)
        return polar ? LaunchKind::UnknownSpeed : LaunchKind::UnknownVx;
    return LaunchKind::UnknownSpeedAndAngle;
}

Velocity VelocityOf(const Launch& launch) {
    return launch.mode == SpeedMode::Polar ? FromSpeed(*launch.first, *launch.second)
                                           : Velocity{*launch.first, *launch.second};
}

}  // namespace

const Symbols& SymbolsOf(int mover) { return kSymbols[mover == 2 ? 1 : 0]; }

Flight ExactFlight(const Equations& equations) {
    constexpr int kAllDecimals = 15;
    return FlightFrom(*equations.launch.start, VelocityOf(equations.launch), kAllDecimals);
}

std::variant<text::Refusal, Planted> PlantLaunch(int mover, const Launch& launch, int decimals) {
    if (const std::string_view fault = FaultOf(launch); !fault.empty())
        return text::Refusal{std::string(fault)};
    Planted planted;
    planted.equations = {KindOf(launch), launch, {}};
    if (planted.equations.IsComplete())
        planted.equations.flight = FlightFrom(*launch.start, VelocityOf(launch), decimals);
    planted.board = EquationLines(mover, planted.equations, decimals);
    planted.report = LaunchReport(mover, planted.equations, planted.board, decimals);
    return planted;
}

}  // namespace tavrelo::mechanics::projectile
