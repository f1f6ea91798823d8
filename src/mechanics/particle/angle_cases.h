#pragma once

#include <span>

#include "mechanics/forces/force_sums.h"
#include "mechanics/particle/equilibrium.h"

namespace tavrelo::mechanics::particle {

// The cases with an unknown angle, each from the forces and their collected sums.

/// A magnitude and an angle of two forces, or of one whose magnitude a second force shares.
Equilibrium SolveForMagnitudeAndAngle(std::span<const notation::Force> forces, const forces::ForceSums& sums,
                                      int decimals);
/// Two angles of forces of known magnitude.
Equilibrium SolveForTwoAngles(std::span<const notation::Force> forces, const forces::ForceSums& sums,
                              int decimals);

}  // namespace tavrelo::mechanics::particle
