#pragma once

#include "numeric/linear_systems.h"

namespace tavrelo::numeric {

/// Whether the rows of a matrix depend on each other but for rounding, whatever the order of its rows and
/// columns and their sizes: with columns and rows brought to one size, an elimination that always takes the
/// largest element left as its pivot comes down below kRoundingPivot. The pivots of LUDec alone do not tell
/// it where an early one is small by chance and carries its rounding, magnified, to the last one.
bool AreDependent(SquareMatrix a);

}  // namespace tavrelo::numeric
