#pragma once

#include <optional>

#include "window/surface.h"

namespace tavrelo::drawing {

inline constexpr double kClockRadius = 60;  // half the face's width, pixels

/// Draws the face turned by `rotation` degrees, with an arrow at the direction of hour and angle.
void DrawClockFace(window::Surface& surface, int hour, double angle, double rotation);

/// The middle of an hour's numeral on the face turned by `rotation` degrees.
window::Point NumeralPlace(int hour, double rotation);

/// The hour (1 to 12) under a place of the face turned by `rotation`, pixels from its top left; none at the
/// centre.
std::optional<int> ClockHourAt(double x, double y, double rotation);

}  // namespace tavrelo::drawing
