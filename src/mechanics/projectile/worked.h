#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/projectile/launch.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::projectile {

/// How a question is answered: Yes (or OK) takes the first launch, No the second, or none if there is only
/// one.
enum class Buttons { YesNo, OkCancel };

/// A special problem worked out: its report, in the markup of rich boxes, and the launches of `mover` that
/// answer it, if it asks whether to plant one: one or two of them. A solution without launches asks nothing.
struct Worked {
    std::vector<std::string> report;
    int mover = 1;
    std::vector<Launch> launches;
    std::string question;  // lines parted by "\n"
    Buttons buttons = Buttons::YesNo;
};
using WorkedOrRefusal = std::variant<text::Refusal, Worked>;

inline constexpr const char* kPlantQuestion = "¿Deseas plantear las ecuaciones con la solución obtenida?";
inline constexpr const char* kOr = "o bien";
inline constexpr const char* kNoSolution = "No hay solución.";
inline constexpr const char* kInvalidData = "Datos no válidos.";

/// A speed with its direction. A negative speed is turned over, which is the same vector.
struct PolarVelocity {
    double speed = 0.0;
    double angle = 0.0;  // degrees, above -180 up to 180

    friend bool operator==(const PolarVelocity&, const PolarVelocity&) = default;
};
PolarVelocity Polar(double speed, double angle);
/// Of components; 0 has the direction 0. Fails with Overflow.
PolarVelocity Polar(const Velocity& velocity);

/// A complete launch by magnitude and direction.
Launch LaunchOf(const Start& start, const PolarVelocity& velocity);

/// A number as a report shows it.
std::string Shown(double number, int decimals);

}  // namespace tavrelo::mechanics::projectile
