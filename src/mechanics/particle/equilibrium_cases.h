#pragma once

#include "mechanics/forces/unknowns.h"
#include "mechanics/particle/equilibrium.h"

namespace tavrelo::mechanics::particle {

// The cases of two unknowns, each from the table of forces and its collected sums.

/// One force of unknown magnitude and direction: it balances all others.
Equilibrium SolveEquilibrant(const mechanics::forces::ForceTable& table,
                             const mechanics::forces::ForceSums& sums, int decimals);
/// Two magnitudes, or no unknowns at all.
Equilibrium SolveMagnitudes(const mechanics::forces::ForceTable& table,
                            const mechanics::forces::ForceSums& sums, int decimals);
/// A magnitude and an angle of two forces, or of one whose magnitude a second force shares.
Equilibrium SolveMagnitudeAndAngle(const mechanics::forces::ForceTable& table,
                                   const mechanics::forces::ForceSums& sums, int decimals);
/// Two angles of forces of known magnitude.
Equilibrium SolveTwoAngles(const mechanics::forces::ForceTable& table,
                           const mechanics::forces::ForceSums& sums, int decimals);

/// What the solver says to unknowns that it has no method for.
inline constexpr const char* kCaseNotSolved = "No resuelvo este caso.";

}  // namespace tavrelo::mechanics::particle
