#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mechanics/projectile/worked.h"

namespace tavrelo::mechanics::projectile {

/// A projectile meets an object that moves along the x axis with the speed u and is at x = 0 at t = 0. With
/// D = tc - t0 the time of flight and e = u t0 - x0,
///   v0 cos q D = e + u D,  v0 sin q D = 4.9 D^2 - y0.
struct Interception {
    Start start;
    std::optional<double> speed;         // v0
    std::optional<double> angle;         // q
    std::optional<double> object_speed;  // u
    std::optional<double> meeting_time;  // tc

    /// With v0 and u known the condition on D is a quartic; an interval for its roots has to be asked for.
    bool NeedsLimit() const;
};

/// Solves for what is not known; `limit` is the end of the interval for D, used when NeedsLimit. Fails with
/// Overflow.
WorkedOrRefusal Intercept(const Interception& data, double limit, int decimals);

/// What is asked for the limit, lines parted by "\n".
inline constexpr const char* kLimitTitle = "Dar límite superior del intervalo de búsqueda";
inline constexpr const char* kFlightTimeLimitText =
    "Resulta una ecuación cuártica para el tiempo tc-t0\nSe buscará una solución para el tiempo tc-t0\n"
    "entre tc-t0 = 0 y el valor de tc-t0 que especifiques aquí.";
/// The limit that was typed: a number above the time of the launch, and above 0.
std::variant<text::Refusal, double> ReadFlightTimeLimit(const Start& start, const std::string& typed);

}  // namespace tavrelo::mechanics::projectile
