#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/rigid/body_equations.h"
#include "mechanics/rigid/results.h"

namespace tavrelo::mechanics::rigid {

/// Two results of a body with an unknown angle; the user is asked for the first (Yes) or the second (No).
using BodyChoice = std::array<BodyResults, 2>;

using BodyOutcome = std::variant<text::Refusal, BodyResults, BodyChoice>;

/// Solves the equations of `bodies` bodies: a linear system, its results in the order of the unknowns, or one
/// body with one unknown angle (see unknown_angle.h). No results are given that do not satisfy the equations;
/// see equilibrium_check.h. Fails with Overflow.
BodyOutcome SolveEquations(const BodyEquations& equations, std::size_t bodies);

/// The forces with the results in all rows that hold their symbols, of whatever body. A force that becomes
/// known counts as found, a couple has its number; texts as typed stay. Fails with Overflow.
BodyForces WithResults(BodyForces forces, const BodyResults& results);

}  // namespace tavrelo::mechanics::rigid
