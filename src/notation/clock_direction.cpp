#include "notation/clock_direction.h"

#include <array>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::notation {
namespace {

// What an hour of the clock face stands for: the letters that write it, and its direction as a base in
// radians to which the acute angle is added or from which it is taken.
struct HourEntry {
    std::string_view quadrant;
    std::string_view axis;
    std::string_view axis_text;
    double base;
    int sign;
};

constexpr std::array<HourEntry, kHours> kHourTable = {{
    {"p", "y", "", numeric::kHalfPi, -1},
    {"p", "x", "", 0, 1},
    {"", "", "h", 0, 0},
    {"c", "x", "", 0, -1},
    {"c", "y", "", -numeric::kHalfPi, 1},
    {"", "", "v-", -numeric::kHalfPi, 0},
    {"t", "y", "", -numeric::kHalfPi, -1},
    {"t", "x", "", -numeric::kPi, 1},
    {"", "", "h-", numeric::kPi, 0},
    {"s", "x", "", numeric::kPi, -1},
    {"s", "y", "", numeric::kHalfPi, 1},
    {"", "", "v", numeric::kHalfPi, 0},
}};

const HourEntry& EntryOf(int hour) {
    if (hour < 1 || hour > kHours)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "hour of the clock");
    return kHourTable[static_cast<std::size_t>(hour) - 1];
}

}  // namespace

int ClockHour(std::string_view quadrant, std::string_view axis) {
    for (int hour = 1; hour <= kHours; ++hour)
        if (!quadrant.empty() && EntryOf(hour).quadrant == quadrant && EntryOf(hour).axis == axis)
            return hour;
    return 0;
}

double ClockDir(int hour, double angle, bool in_degrees) {
    const HourEntry& entry = EntryOf(hour);
    const double radians = numeric::Finite(entry.base + entry.sign * (angle * numeric::kRadiansPerDegree));
    return in_degrees ? numeric::WholeDegrees(numeric::Finite(radians * numeric::kDegreesPerRadian))
                      : radians;
}

std::string ClockText(int hour, double angle) {
    const HourEntry& entry = EntryOf(hour);
    if (IsAxisHour(hour))
        return std::string(entry.axis_text);
    return std::string(entry.quadrant) + text::NumberToText(angle) + std::string(entry.axis) + ",";
}

bool IsAxisHour(int hour) {
    return hour == kHourRight || hour == kHourDown || hour == kHourLeft || hour == kHourUp;
}

int OppositeHour(int hour) { return (hour + kHours / 2 - 1) % kHours + 1; }

}  // namespace tavrelo::notation
