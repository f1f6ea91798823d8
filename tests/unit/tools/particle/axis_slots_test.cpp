#include "tools/particle/axis_slots.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tavrelo::tools::particle {
namespace {

constexpr double kTolerance = 1e-12;

struct SideRow {
    int leaving_hour;
    int arriving_hour;
    std::vector<Offset> offsets;  // of the first, second and third arrow
};

const std::vector<SideRow>& Sides() {
    static const std::vector<SideRow> sides = {
        {3, 9, {{0, 0}, {5, -5}, {5, 4}}},
        {12, 6, {{0, 0}, {5, 4}, {-4, 4}}},
        {9, 3, {{0, 0}, {-4, 4}, {-4, -5}}},
        {6, 12, {{0, 0}, {-4, -5}, {5, -5}}},
    };
    return sides;
}

void ExpectOffset(const Offset& got, double dx, double dy, int hour) {
    EXPECT_NEAR(got.dx, dx, kTolerance) << hour;
    EXPECT_NEAR(got.dy, dy, kTolerance) << hour;
}

TEST(AxisOffset, TakesThePlacesOfAHalfAxisInOrderAndStartsAtThePointOnceTheyAreFull) {
    AxisSlots slots;
    for (const SideRow& side : Sides()) {
        for (const Offset& offset : side.offsets)
            ExpectOffset(slots.AxisOffset(true, side.leaving_hour, 0), offset.dx, offset.dy,
                         side.leaving_hour);
        ExpectOffset(slots.AxisOffset(true, side.leaving_hour, 0), 0, 0, side.leaving_hour);
    }
}

TEST(AxisOffset, LaysAnArrivingForceOnTheSideItComesFrom) {
    for (const SideRow& side : Sides()) {
        AxisSlots slots;
        slots.AxisOffset(true, side.leaving_hour, 0);
        const Offset& second = side.offsets[1];
        ExpectOffset(slots.AxisOffset(false, side.arriving_hour, 0), second.dx, second.dy,
                     side.arriving_hour);
        const Offset& third = side.offsets[2];
        ExpectOffset(slots.AxisOffset(true, side.leaving_hour, 0), third.dx, third.dy, side.leaving_hour);
    }
}

TEST(AxisOffset, GivesNoneBetweenTheAxes) {
    AxisSlots slots;
    for (int hour : {1, 2, 4, 5, 7, 8, 10, 11})
        for (int i = 0; i < 4; ++i)
            ExpectOffset(slots.AxisOffset(true, hour, 0), 0, 0, hour);
    for (int i = 0; i < 4; ++i)
        ExpectOffset(slots.AxisOffset(true, std::nullopt, 0), 0, 0, 0);
    slots.AxisOffset(true, 3, 0);
    ExpectOffset(slots.AxisOffset(true, 3, 0), 5, -5, 3);  // nothing above took a place
}

TEST(AxisOffset, TurnsWithTheAxes) {
    AxisSlots slots;
    slots.AxisOffset(true, 3, 90);
    ExpectOffset(slots.AxisOffset(true, 3, 90), 5, 5, 3);  // (5, -5) a quarter turn on
    const double c = std::sqrt(3.0) / 2;
    ExpectOffset(slots.AxisOffset(true, 3, 30), 5 * c - 4 * 0.5, 5 * 0.5 + 4 * c, 3);
}

TEST(AxisSlots, AreFreeAgainWhenCleared) {
    AxisSlots slots;
    slots.AxisOffset(true, 3, 0);
    slots.Clear();
    ExpectOffset(slots.AxisOffset(true, 3, 0), 0, 0, 3);
    ExpectOffset(slots.AxisOffset(true, 3, 0), 5, -5, 3);
}

}  // namespace
}  // namespace tavrelo::tools::particle
