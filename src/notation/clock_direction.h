#pragma once

#include <string>
#include <string_view>

namespace tavrelo::notation {

/// Hours of the direction clock: 3 is the x axis, 12 the y axis.
inline constexpr int kHours = 12;
inline constexpr int kHourRight = 3;
inline constexpr int kHourDown = 6;
inline constexpr int kHourLeft = 9;
inline constexpr int kHourUp = 12;

/// The hour of a quadrant letter (p, s, t, c) and the axis (x, y) from which its acute angle is measured; 0
/// for any other letters. "p" and "y" is 1: the first quadrant, next to the y axis.
int ClockHour(std::string_view quadrant, std::string_view axis);

/// The direction, from -180 to 180 degrees (or in radians), of an hour and the acute angle in degrees
/// measured from its axis; the four axis hours take no angle. Fails with SubscriptRange on an hour outside 1
/// to 12.
double ClockDir(int hour, double angle, bool in_degrees);

/// The start of a vector text: "p30x," for hour 2 and 30 degrees, "h", "v-", "h-" and "v" for the axes. Fails
/// as ClockDir.
std::string ClockText(int hour, double angle);

/// True for the four hours that lie on an axis.
bool IsAxisHour(int hour);

/// The hour that points the other way.
int OppositeHour(int hour);

}  // namespace tavrelo::notation
