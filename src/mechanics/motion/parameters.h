#pragma once

#include "mechanics/motion/procedures.h"

namespace tavrelo::mechanics::motion {

/// Puts the data of a clicked point, alone or over an interval from an earlier one, into equations with
/// parameters. One parameter is found and reported, and the user is asked whether the equations take it; of
/// two parameters the data state an equation, unless they determine the acceleration or, with t, x and v,
/// both.
Step SubstituteWithParameters(const Problem& problem, const points::PointPlace& place, const PointData& data,
                              int decimals);

}  // namespace tavrelo::mechanics::motion
