#include "drawing/clock_face.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavrelo::drawing {
namespace {

struct Place {
    double x;
    double y;
};

/// Where hour k stands on a clock face: 30 degrees an hour, clockwise from the top, turned by `rotation`.
Place PlaceOfHour(int hour, double radius, double rotation) {
    const double radians = (90 - 30 * hour + rotation) * std::acos(-1.0) / 180;
    return {kClockRadius + radius * std::cos(radians), kClockRadius - radius * std::sin(radians)};
}

TEST(ClockFace, AClickOnANumeralGivesItsHourHoweverTheFaceIsTurned) {
    for (const double rotation : {0.0, 30.0, -90.0, 90.0, 17.5})
        for (int hour = 1; hour <= 12; ++hour)
            for (const double radius : {8.0, 48.0, 59.0}) {
                const Place place = PlaceOfHour(hour, radius, rotation);
                EXPECT_EQ(ClockHourAt(place.x, place.y, rotation), hour) << rotation << ' ' << radius;
            }
}

TEST(ClockFace, TheCentreGivesNoHour) {
    EXPECT_EQ(ClockHourAt(60, 60, 0), std::nullopt);
    EXPECT_EQ(ClockHourAt(64, 63, 0), std::nullopt);
    EXPECT_EQ(ClockHourAt(60, 53.5, 0), 12);
}

TEST(ClockFace, ShowsTwelveNumeralsTheAxesInBold) {
    window::Recorder surface(120, 120);
    DrawClockFace(surface, 2, 30, 0);
    const auto texts = surface.VisibleTexts();
    ASSERT_EQ(texts.size(), 12u);
    EXPECT_EQ(texts.front(), "1");
    EXPECT_EQ(texts.back(), "12");
    for (const window::DrawOp& op : surface.Operations())
        if (const auto* text = std::get_if<window::TextOp>(&op)) {
            const bool axis = std::stoi(text->PlainText()) % 3 == 0;
            EXPECT_EQ(text->runs.front().font.bold, axis) << text->PlainText();
        }
}

TEST(ClockFace, TheNumeralOfAnHourLiesOnIt) {
    for (const double rotation : {0.0, 17.0, -60.0, 135.0})
        for (int hour = 1; hour <= 12; ++hour) {
            const window::Point place = NumeralPlace(hour, rotation);
            EXPECT_EQ(ClockHourAt(place.x, place.y, rotation), hour) << rotation;
        }
}

}  // namespace
}  // namespace tavrelo::drawing
