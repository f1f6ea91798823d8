#pragma once

#include <string_view>

#include "problem.h"

namespace tavrelo::physics {

// Each makes forces on a particle with unknowns of one pattern, in equilibrium for known values of them.

Verdict PlayTwoMagnitudes(Problem& problem);
Verdict PlayEquilibrant(Problem& problem);
Verdict PlayMagnitudeAndAngle(Problem& problem);
Verdict PlayTwoAngles(Problem& problem);
Verdict PlayPulley(Problem& problem);
/// Data beside or at the limits where two solutions become one, or none.
Verdict PlayNearTangent(Problem& problem);
/// Forces that nothing can balance, or that more than one answer balances.
Verdict PlayUnsolvableParticle(Problem& problem);
/// Any of the patterns above with very small or very large forces.
Verdict PlayParticleOfAnySize(Problem& problem);
/// More unknowns than two equations can find.
Verdict PlayTooManyUnknowns(Problem& problem);

inline constexpr std::string_view kNoEquilibriumText = "No se pueden cumplir las ecuaciones de equilibrio.";
inline constexpr std::string_view kSingularText = "El determinante del sistema es cero.";
inline constexpr std::string_view kNoSuchSolutionText = "No existe solución.";
inline constexpr std::string_view kCaseNotSolvedText = "No resuelvo este caso.";
inline constexpr std::string_view kTooManyUnknownsText =
    "El número de incógnitas excede al número de ecuaciones.";
inline constexpr std::string_view kSameUnknownText = "Misma incógnita en ambas ecuaciones.";
inline constexpr std::string_view kBadDataText = "Error en los datos.";

}  // namespace tavrelo::physics
