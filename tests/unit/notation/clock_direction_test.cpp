#include "notation/clock_direction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::notation {
namespace {

constexpr double kTolerance = 1e-12;

struct HourRow {
    const char* quadrant;
    const char* axis;
    int hour;
};

TEST(ClockHour, NamesTheHourNextToTheAxis) {
    const HourRow rows[] = {
        {"p", "x", 2}, {"p", "y", 1}, {"s", "x", 10}, {"s", "y", 11}, {"t", "x", 8},
        {"t", "y", 7}, {"c", "x", 4}, {"c", "y", 5},  {"P", "x", 0},  {"p", "X", 0},
        {"a", "x", 0}, {"p", "z", 0}, {"", "", 0},    {"", "x", 0},
    };
    for (const HourRow& row : rows)
        EXPECT_EQ(ClockHour(row.quadrant, row.axis), row.hour) << row.quadrant << row.axis;
}

struct DirectionRow {
    int hour;
    double angle;
    double direction;
};

TEST(ClockDir, TurnsTheAngleFromItsAxis) {
    const DirectionRow rows[] = {
        {1, 30, 60},   {2, 30, 30},   {3, 0, 0},     {4, 30, -30},  {5, 30, -60}, {6, 0, -90}, {7, 30, -120},
        {8, 30, -150}, {9, 0, 180},   {10, 30, 150}, {11, 30, 120}, {12, 0, 90},  {2, 90, 90}, {10, 0, 180},
        {8, 0, -180},  {7, 90, -180}, {4, 90, -90},  {3, 77, 0},    {9, 77, 180},
    };
    for (const DirectionRow& row : rows)
        EXPECT_EQ(ClockDir(row.hour, row.angle, true), row.direction) << row.hour << ' ' << row.angle;
}

TEST(ClockDir, RoundsToWholeDegreesOtherThanZero) {
    EXPECT_NEAR(ClockDir(1, 90, true), 0, kTolerance);
    EXPECT_NEAR(ClockDir(2, 1e-9, true), 1e-9, 1e-21);
}

TEST(ClockDir, GivesRadiansOnRequest) {
    EXPECT_NEAR(ClockDir(2, 30, false), std::numbers::pi / 6, kTolerance);
    EXPECT_NEAR(ClockDir(10, 45, false), 3 * std::numbers::pi / 4, kTolerance);
    EXPECT_NEAR(ClockDir(6, 0, false), -std::numbers::pi / 2, kTolerance);
}

TEST(ClockDir, IsTheInverseOfTheClockReading) {
    for (int direction = -179; direction <= 180; ++direction) {
        const double radians = direction * std::numbers::pi / 180;
        const numeric::ClockReading clock = numeric::ClockOf(std::cos(radians), std::sin(radians));
        EXPECT_NEAR(ClockDir(clock.hour, clock.angle, true), direction, 1e-9);
    }
}

TEST(ClockDir, FailsOutsideTheFace) {
    for (int hour : {0, 13, -1})
        EXPECT_THROW(ClockDir(hour, 30, true), numeric::RuntimeFailure) << hour;
}

TEST(ClockText, WritesTheStartOfAVector) {
    const std::tuple<int, double, const char*> rows[] = {
        {1, 5, "p5y,"},   {2, 30, "p30x,"}, {3, 30, "h"}, {4, 0.5, "c0.5x,"}, {5, 45, "c45y,"},  {6, 0, "v-"},
        {7, 30, "t30y,"}, {8, 12, "t12x,"}, {9, 0, "h-"}, {10, 1, "s1x,"},    {11, 15, "s15y,"}, {12, 0, "v"},
    };
    for (const auto& [hour, angle, text] : rows)
        EXPECT_EQ(ClockText(hour, angle), text);
}

TEST(ClockText, WritesTheAngleWithFifteenDigits) {
    EXPECT_EQ(ClockText(2, 36.86989764584405), "p36.869897645844x,");  // ...8440 drops its zero
    EXPECT_EQ(ClockText(2, 1.0 / 3), "p0.333333333333333x,");
}

TEST(ClockText, FailsOutsideTheFace) { EXPECT_THROW(ClockText(0, 30), numeric::RuntimeFailure); }

TEST(OppositeHour, LiesAcrossTheFace) {
    const std::pair<int, int> rows[] = {{1, 7}, {3, 9}, {5, 11}, {6, 12}, {7, 1}, {9, 3}, {12, 6}};
    for (const auto& [hour, opposite] : rows)
        EXPECT_EQ(OppositeHour(hour), opposite) << hour;
}

TEST(IsAxisHour, HoldsForMultiplesOfThree) {
    for (int hour = 1; hour <= kHours; ++hour)
        EXPECT_EQ(IsAxisHour(hour), hour % 3 == 0) << hour;
}

}  // namespace
}  // namespace tavrelo::notation
