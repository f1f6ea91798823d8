#pragma once

#include <string_view>

#include "problem.h"

namespace tavrelo::physics {

// --- One body
/// Held by an articulation, a built-in support, rollers, ropes, couples.
Verdict PlayHeldBody(Problem& problem);
/// Held so that it can move or that more than one answer holds it.
Verdict PlayBadlyHeldBody(Problem& problem);
/// Upright forces alone: two unknowns, the equation along x left out.
Verdict PlayUprightForces(Problem& problem);
/// More unknowns than equations, or fewer.
Verdict PlayOtherCounts(Problem& problem);

// --- Several bodies (rigid_structures.cpp)
/// Two to four bodies on hinges, ropes and joints, one held by the last.
Verdict PlayStructure(Problem& problem);
/// The joints of a truss, each a particle.
Verdict PlayTrussByJoints(Problem& problem);
/// A truss as a whole and a part of it behind three cut bars.
Verdict PlayTrussBySection(Problem& problem);
/// As many unknowns as equations, but one body has too many and another too few.
Verdict PlayBadlyHeldStructure(Problem& problem);

// --- One unknown angle (rigid_angles.cpp)
/// A known force at an unknown angle.
Verdict PlayTurningForce(Problem& problem);
/// A force unknown in magnitude and direction.
Verdict PlayFreeForce(Problem& problem);
/// A force whose magnitude stands elsewhere too.
Verdict PlayBodyOnARope(Problem& problem);
/// A known force too weak to hold the body, or beside that limit.
Verdict PlayWeakTurningForce(Problem& problem);
/// Any of the above with very small or very large forces.
Verdict PlayBodyOfAnySize(Problem& problem);

inline constexpr std::string_view kNoBodySolutionText = "No hay solución.";

}  // namespace tavrelo::physics
