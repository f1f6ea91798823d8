#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/rigid/body_equations.h"

namespace tavrelo::mechanics::rigid {

/// The value of an unknown; an angle in degrees, above -180 up to 180.
struct FoundUnknown {
    std::string name;
    double value;
    bool is_angle = false;  // an angle and a force may share a name
};
using BodyResults = std::vector<FoundUnknown>;

/// Two results of a body with an unknown angle; the user is asked for the first (Yes) or the second (No).
using BodyChoice = std::array<BodyResults, 2>;

using BodyOutcome = std::variant<text::Refusal, BodyResults, BodyChoice>;

/// Solves the equations of `bodies` bodies: a linear system, its results in the order of the unknowns, or one
/// body with one unknown angle (see unknown_angle.h). Fails with Overflow.
BodyOutcome SolveEquations(const BodyEquations& equations, std::size_t bodies);

/// The forces with the results in all rows that hold their symbols, of whatever body. A force that becomes
/// known is rewritten as a known one with the colour of a solved one, a couple has its number; texts as typed
/// stay. Fails with Overflow.
BodyForces WithResults(BodyForces forces, const BodyResults& results, int decimals);

}  // namespace tavrelo::mechanics::rigid
