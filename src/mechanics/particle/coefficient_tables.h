#pragma once

#include "mechanics/forces/force_sums.h"

namespace tavrelo::mechanics::particle {

/// The coefficients A, B and D, E of two unknowns in the sums along x and y, with these unknowns.
struct TwoUnknowns {
    double a = 0, b = 0;
    double d = 0, e = 0;
    notation::UnknownTerm first;
    notation::UnknownTerm second;
};

/// Two unknown magnitudes. Sums whose unknowns no row of the table fits leave all coefficients 0: their
/// system is singular, and the solver says so.
TwoUnknowns MagnitudeCoefficients(const forces::ForceSums& sums);

/// A magnitude (A, D) and the term of an unknown angle (B, E); `first` is the magnitude, `second` the
/// angle's term as the sum along x writes it.
TwoUnknowns MagnitudeAndAngleCoefficients(const forces::ForceSums& sums);

}  // namespace tavrelo::mechanics::particle
