#include "tools/particle/forces_in_view.h"

#include <gtest/gtest.h>

#include <variant>

#include "notation/force_parser.h"

namespace tavrelo::tools::particle {
namespace {

constexpr int kDecimals = 3;

notation::ForceRecord Read(const char* text) {
    return std::get<notation::ForceRecord>(notation::ParseForce(text, kDecimals));
}

ForcesInView Listed(std::initializer_list<const char*> texts) {
    ForcesInView forces;
    for (const char* text : texts)
        forces.Add(Read(text), {}, {});
    return forces;
}

TEST(ForcesInView, KeepsAForceAndItsArrowTogether) {
    ForcesInView forces;
    forces.Add(Read("p90x,3:"), {}, {1, 2});
    forces.Add(Read("20<a"), 400, {});
    ASSERT_EQ(forces.Count(), 2u);
    EXPECT_EQ(forces.Forces()[0].magnitude, 3);
    EXPECT_EQ(forces.Arrows()[0].given_text, "p90x,3:");
    EXPECT_FALSE(forces.Arrows()[0].leaves);
    EXPECT_EQ(forces.Arrows()[0].hour, 2);  // as typed
    EXPECT_EQ(forces.Arrows()[0].start.dy, 2);
    EXPECT_FALSE(forces.Arrows()[1].hour);
    EXPECT_EQ(forces.Arrows()[1].asked_direction, 400);
    forces.Remove(0);
    ASSERT_EQ(forces.Count(), 1u);
    EXPECT_EQ(forces.Arrows()[0].given_text, "20<a");
    EXPECT_EQ(forces.Forces()[0].magnitude, 20);
    forces.Remove(1);
    EXPECT_EQ(forces.Count(), 1u);
    forces.RemoveLast();
    forces.RemoveLast();
    EXPECT_TRUE(forces.IsEmpty());
}

TEST(ForcesInView, PlacesAllBesideTheirAxesInOrder) {
    ForcesInView forces = Listed({"h5", "v5", "h2"});
    AxisSlots slots;
    slots.AxisOffset(true, 3, 0);  // is freed
    forces.PlaceAll(slots, 0);
    EXPECT_EQ(forces.Arrows()[0].start.dx, 0);
    EXPECT_EQ(forces.Arrows()[1].start.dx, 0);
    EXPECT_EQ(forces.Arrows()[2].start.dx, 5);
    EXPECT_EQ(forces.Arrows()[2].start.dy, -5);
}

TEST(ForcesInView, ShowsASolutionWhereItPoints) {
    ForcesInView forces = Listed({"20<a", "p90x,5", "F,Q"});
    std::vector<notation::Force> solved = forces.Forces();
    solved[0].x.number = 0;
    solved[0].y.number = -20;
    forces.Take(solved);
    EXPECT_EQ(forces.Arrows()[0].hour, 6);
    EXPECT_FALSE(forces.Arrows()[0].asked_direction);
    EXPECT_EQ(forces.Arrows()[1].hour, 12);  // typed as hour 2 with 90 degrees
    EXPECT_FALSE(forces.Arrows()[2].hour);   // still unknown
}

TEST(ForcesInView, CountsFoundForcesAsGivenOnceAccepted) {
    ForcesInView forces = Listed({"hF"});
    std::vector<notation::Force> solved = forces.Forces();
    solved[0].knowledge = notation::Knowledge::Found;
    forces.Take(solved);
    EXPECT_EQ(forces.Forces()[0].knowledge, notation::Knowledge::Found);
    forces.AcceptFound();
    EXPECT_EQ(forces.Forces()[0].knowledge, notation::Knowledge::Given);
}

}  // namespace
}  // namespace tavrelo::tools::particle
