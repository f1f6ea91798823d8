#pragma once

#include <string_view>

#include "problem.h"

namespace tavrelo::physics {

/// A vector in any notation, as the calculator and the tools of statics read it.
Verdict PlayVectorText(Problem& problem);
/// Sums, differences, products, the angle between, turning, lists.
Verdict PlayVectorAlgebra(Problem& problem);
/// A vector by the factors of a base, and by its projections.
Verdict PlayVectorBase(Problem& problem);
/// Coplanar forces: a resultant with its line, a couple, or nothing.
Verdict PlayPlaneForces(Problem& problem);
/// Parallel forces on a line and across a plane.
Verdict PlayParallelForces(Problem& problem);
/// A load along a beam.
Verdict PlayDistributedLoad(Problem& problem);

inline constexpr std::string_view kNoBaseText = "Los vectores no forman una base.";

}  // namespace tavrelo::physics
