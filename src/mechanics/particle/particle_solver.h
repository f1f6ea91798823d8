#pragma once

#include <span>

#include "mechanics/particle/equilibrium.h"

namespace tavrelo::mechanics::particle {

/// Solves the two equations of equilibrium of a particle, the sums of all components along x and y being
/// zero, for two unknowns among the magnitudes and directions of the forces. The method, by the unknowns that
/// stand in the sums:
///   one force of unknown magnitude and direction: the equilibrant of the others;
///   two magnitudes: the linear system;
///   a magnitude and an angle, or two angles: the trigonometric systems of two_equations.h, whose
///   roots are put back into the forces and kept when both sums are below 0.001.
/// Fails with RuntimeFailure on overflow and on unknowns whose coefficients vanish.
Equilibrium SolveEquilibrium(std::span<const notation::Force> forces, int decimals);

}  // namespace tavrelo::mechanics::particle
