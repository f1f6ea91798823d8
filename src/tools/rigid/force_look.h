#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mechanics/rigid/body_force.h"

namespace tavrelo::tools::rigid {

/// Degrees in which an unknown direction is drawn when nobody has told.
inline constexpr double kDefaultDirection = 45;

/// How a force is shown, beside what the problem knows of it; nothing of it is set for a couple alone.
struct ForceLook {
    std::string x_text;  // the components in the table of forces
    std::string y_text;
    std::string label;                           // of an unknown magnitude, picture markup
    bool leaves = true;                          // its point; otherwise it arrives there
    bool by_components = false;                  // an arrow for each component while one is unknown
    std::optional<numeric::ClockReading> clock;  // of the direction, as typed; nothing while that is unknown
    std::optional<double> asked_direction;  // degrees, in which the user wants to see an unknown direction
};

/// Row for row of a table of forces.
using ForceLooks = std::vector<ForceLook>;

/// The look of a force as it was written.
ForceLook LookOf(const std::optional<notation::ForceRecord>& written);

/// The look of a force after a solution: one that is known points where its components tell.
ForceLook SolvedLook(ForceLook look, const mechanics::rigid::BodyForce& force, int decimals);

/// Whether the force is to be drawn in a direction that only the user knows, and nobody has asked yet.
bool NeedsDirection(const mechanics::rigid::BodyForce& force, const ForceLook& look);

}  // namespace tavrelo::tools::rigid
