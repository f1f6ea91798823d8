#pragma once

#include "mechanics/motion/procedures.h"

namespace tavrelo::mechanics::motion {

/// Puts the data of a clicked point into complete equations: a number finds the rest of the point and writes
/// it into the table; two increments, or an increment and a factor, over an earlier point find both points of
/// the interval, which the results panel shows. Data that fit no case do nothing.
Step Substitute(const Problem& problem, const points::PointPlace& place, const PointData& data, int decimals);

/// The moment at which a motion has a speed. Refused for a uniform one.
std::variant<text::Refusal, double> TimeOfSpeed(const Motion& motion, double v);

}  // namespace tavrelo::mechanics::motion
