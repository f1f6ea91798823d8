#pragma once

#include <optional>

#include "mechanics/motion/problem.h"

/// The times that the table gives to points.
namespace tavrelo::mechanics::motion {

/// The time in the table of a mover's point; nothing when the cell holds no number.
std::optional<double> TimeOf(const Problem& problem, int mover, int point);

/// Whether a time lies between those of the first and the last point of a stretch, the ends and what rounding
/// leaves beside them included; always when the table lacks one of them.
bool IsWithinStretch(const Problem& problem, int mover, int stretch, double t);

/// What rounding may leave of a computed time beside typed ones of this size.
double TimeSlack(double first, double last);

}  // namespace tavrelo::mechanics::motion
