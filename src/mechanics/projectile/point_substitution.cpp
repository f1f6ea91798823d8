#include "mechanics/projectile/point_substitution.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;
using Times = std::vector<double>;

constexpr std::string_view kNoSolution = "No hay solución.";
constexpr std::string_view kCheckTheData = "No hay solución. Verifica los datos.";
constexpr std::string_view kNegativeSpeed = "Magnitud negativa.";

Times AtTime(const Flight&, const PointDatum& datum) { return {datum.value}; }

Times AtX(const Flight& flight, const PointDatum& datum) {
    if (IsZero(flight.launch.x))
        return {};
    return {Finite((datum.value - flight.x_at_zero) / flight.launch.x)};
}

Times AtY(const Flight& flight, const PointDatum& datum) {
    return RealRoots(-kHalfGravity, flight.vy_at_zero, flight.y_at_zero - datum.value);
}

Times AtVy(const Flight& flight, const PointDatum& datum) {
    return {Finite((flight.vy_at_zero - datum.value) / kGravity)};
}

/// tan(angle) = vy / vx.
Times AtAngle(const Flight& flight, const PointDatum& datum) {
    if (IsUpright(datum.value) || IsZero(flight.launch.x))
        return {};
    return {Finite((flight.vy_at_zero - flight.launch.x * numeric::TanD(datum.value)) / kGravity)};
}

/// y(t + d) - y(t) = e; the square terms cancel.
Times AtIncrements(const Flight& flight, const PointDatum& datum) {
    const double d = datum.time_increment;
    if (d == 0.0)
        return {};
    return {Finite((flight.vy_at_zero * d - datum.height_increment) / (kGravity * d) + d / 2.0)};
}

/// vx^2 + vy^2 = v^2.
Times AtSpeed(const Flight& flight, const PointDatum& datum) {
    const double vx = flight.launch.x;
    const double vy = flight.vy_at_zero;
    return RealRoots(kGravitySquared, -kTwiceGravity * vy, vy * vy + vx * vx - datum.value * datum.value);
}

struct Row {
    Times (*times)(const Flight&, const PointDatum&);
    std::string_view none;
};
// In the order of Datum.
constexpr std::array<Row, 7> kRows = {{
    {AtTime, kNoSolution},
    {AtX, kNoSolution},
    {AtY, kCheckTheData},
    {AtVy, kNoSolution},
    {AtAngle, kNoSolution},
    {AtIncrements, kNoSolution},
    {AtSpeed, kCheckTheData},
}};

}  // namespace

std::variant<text::Refusal, std::vector<State>> StatesWith(const Flight& flight, const PointDatum& datum) {
    if (datum.datum == Datum::Speed && datum.value < 0.0)
        return text::Refusal{std::string(kNegativeSpeed)};
    const Row& row = kRows[static_cast<std::size_t>(datum.datum)];
    const Times times = row.times(flight, datum);
    if (times.empty())
        return text::Refusal{std::string(row.none)};
    std::vector<State> states;
    for (const double t : times)
        states.push_back(StateAt(flight, t));
    return states;
}

std::vector<std::string> StateLines(int mover, int point, const State& state, SpeedMode mode, int decimals) {
    const Symbols& symbols = SymbolsOf(mover);
    const auto datum = [index = "!" + std::to_string(point), decimals](std::string_view name, double number) {
        return std::string(name) + index + " = " + text::NumText(number, decimals).Text();
    };
    const auto& [vx, vy] = state.velocity;
    const std::string velocity = mode == SpeedMode::Components
                                     ? datum(symbols.Vx(), vx) + ",   " + datum(symbols.Vy(), vy)
                                     : datum(symbols.v, SpeedOf(state.velocity)) + ",   " +
                                           datum(";q", DirectionOf(state.velocity)) + "°";
    return {datum("t", state.t) + ", " + datum(symbols.x, state.x),
            datum(symbols.y, state.y) + ",    " + velocity};
}

}  // namespace tavrelo::mechanics::projectile
