#pragma once

#include <span>

#include "mechanics/forces/force_sums.h"
#include "mechanics/particle/equilibrium.h"

namespace tavrelo::mechanics::particle {

// The cases that a linear system settles, each from the forces and their collected sums.

/// One force of unknown magnitude and direction: it balances all others. An angle alone is refused.
Equilibrium SolveEquilibrant(std::span<const notation::Force> forces, const forces::ForceSums& sums,
                             int decimals);
/// Two magnitudes, or no unknowns at all.
Equilibrium SolveMagnitudes(std::span<const notation::Force> forces, const forces::ForceSums& sums,
                            int decimals);

}  // namespace tavrelo::mechanics::particle
