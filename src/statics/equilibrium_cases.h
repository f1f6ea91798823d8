#pragma once

#include "statics/equilibrium.h"
#include "statics/unknowns.h"

namespace tavrelo::statics {

// The cases of two unknowns, each from the table of forces and its collected sums.

/// One force of unknown magnitude and direction: it balances all others.
Equilibrium SolveEquilibrant(const ForceTable& table, const ForceSums& sums, int decimals);
/// Two magnitudes, or no unknowns at all.
Equilibrium SolveMagnitudes(const ForceTable& table, const ForceSums& sums, int decimals);
/// A magnitude and an angle of two forces, or of one whose magnitude a second force shares.
Equilibrium SolveMagnitudeAndAngle(const ForceTable& table, const ForceSums& sums, int decimals);
/// Two angles of forces of known magnitude.
Equilibrium SolveTwoAngles(const ForceTable& table, const ForceSums& sums, int decimals);

/// What the solver says to unknowns that it has no method for.
inline constexpr const char* kCaseNotSolved = "No resuelvo este caso.";

}  // namespace tavrelo::statics
