// Two stretches solved as one motion: worked examples.

#include "mechanics/motion/linking.h"

#include <gtest/gtest.h>

#include "../../failure_code.h"

namespace tavrelo::mechanics::motion {
namespace {

using numeric::FailureCode;
using tavrelo::testing::FailureOf;
using LinkedMotions = std::vector<LinkedMotion>;

constexpr double kTolerance = 1e-9;
constexpr LinkDatum kLinkData[] = {LinkDatum::FirstAcceleration, LinkDatum::SecondAcceleration,
                                   LinkDatum::FinalTime, LinkDatum::FinalPosition, LinkDatum::FinalSpeed};

LinkData Without(LinkDatum missing, LinkData data) {
    switch (missing) {
        case LinkDatum::FirstAcceleration:
            data.first_acceleration.reset();
            break;
        case LinkDatum::SecondAcceleration:
            data.second_acceleration.reset();
            break;
        case LinkDatum::FinalTime:
            data.tc.reset();
            break;
        case LinkDatum::FinalPosition:
            data.xc.reset();
            break;
        case LinkDatum::FinalSpeed:
            data.vc.reset();
            break;
    }
    return data;
}

void ExpectMotion(const LinkedMotion& motion, const MotionPoint& junction, const MotionPoint& end, double a1,
                  double a2) {
    EXPECT_NEAR(motion.junction.t, junction.t, kTolerance);
    EXPECT_NEAR(motion.junction.x, junction.x, kTolerance);
    EXPECT_NEAR(motion.junction.v, junction.v, kTolerance);
    EXPECT_NEAR(motion.end.t, end.t, kTolerance);
    EXPECT_NEAR(motion.end.x, end.x, kTolerance);
    EXPECT_NEAR(motion.end.v, end.v, kTolerance);
    EXPECT_NEAR(motion.first_acceleration, a1, kTolerance);
    EXPECT_NEAR(motion.second_acceleration, a2, kTolerance);
}

// From rest with 2 for 5 (x = 25, v = 10), then braked with -1 for 4: x = 25 + 40 - 8 = 57, v = 6.
TEST(SolveLink, FindsEachDatumOfAMetro) {
    const LinkData all = {{0, 0, 0}, 2, -1, 9, 57, 6};
    for (const LinkDatum missing : kLinkData) {
        const LinkData data = Without(missing, all);
        EXPECT_EQ(data.Missing(), missing);
        const auto answer = SolveLink(data);
        ASSERT_TRUE(std::holds_alternative<LinkedMotions>(answer)) << static_cast<int>(missing);
        ASSERT_EQ(std::get<LinkedMotions>(answer).size(), 1U);
        ExpectMotion(std::get<LinkedMotions>(answer).front(), {5, 25, 10}, {9, 57, 6}, 2, -1);
    }
}

// At 20 for half a second, then braked with -5 to rest: 10 + 40.
TEST(SolveLink, AUniformStretchTakesTheTimeOfItsDistance) {
    const auto reaction = SolveLink({{0, 0, 20}, 0, -5, {}, 50, 0});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(reaction));
    ASSERT_EQ(std::get<LinkedMotions>(reaction).size(), 1U);
    ExpectMotion(std::get<LinkedMotions>(reaction).front(), {0.5, 10, 20}, {4.5, 50, 0}, 0, -5);
    // From rest with 2 to 6 in 3 (x = 9), then on at 6 for 4.
    const auto cruise = SolveLink({{1, 0, 0}, 2, 0, {}, 33, 6});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(cruise));
    ASSERT_EQ(std::get<LinkedMotions>(cruise).size(), 1U);
    ExpectMotion(std::get<LinkedMotions>(cruise).front(), {4, 9, 6}, {8, 33, 6}, 2, 0);
}

// Thrown up at 10 under -10 and then pushed on with -5: at x = 3.75 falling with 5 it may have passed the
// junction rising or falling: s = (25 - 100 + 37.5)/(-10) = 3.75, vb^2 = 25, vb = 5 at 0.5 or -5 at 1.5.
TEST(SolveLink, AJunctionPassedOnTheWayUpOrDown) {
    const auto answer = SolveLink({{0, 0, 10}, -10, -5, {}, 3.75, -5});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(answer));
    const auto& motions = std::get<LinkedMotions>(answer);
    ASSERT_EQ(motions.size(), 2U);
    ExpectMotion(motions[0], {0.5, 3.75, 5}, {2.5, 3.75, -5}, -10, -5);
    ExpectMotion(motions[1], {1.5, 3.75, -5}, {1.5, 3.75, -5}, -10, -5);
}

// Thrown up at 10 under -10, at rest at 5 when the acceleration becomes -5: 2 later it falls with 10 at -5. A
// junction at rest is one solution, not two.
TEST(SolveLink, AJunctionAtRestCountsOnce) {
    const auto answer = SolveLink({{0, 0, 10}, -10, -5, {}, -5, -10});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(answer));
    ASSERT_EQ(std::get<LinkedMotions>(answer).size(), 1U);
    ExpectMotion(std::get<LinkedMotions>(answer).front(), {1, 5, 0}, {3, -5, -10}, -10, -5);
}

// From rest at a with -1 all the way for 9: the junction is a itself. With 2 all the way to 81 it is c.
TEST(SolveLink, AJunctionMayLieOnAOrC) {
    const auto at_a = SolveLink({{0, 0, 0}, 2, -1, 9, -40.5, {}});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(at_a));
    ExpectMotion(std::get<LinkedMotions>(at_a).front(), {0, 0, 0}, {9, -40.5, -9}, 2, -1);
    const auto at_c = SolveLink({{0, 0, 0}, 2, -1, 9, 81, {}});
    ASSERT_TRUE(std::holds_alternative<LinkedMotions>(at_c));
    ExpectMotion(std::get<LinkedMotions>(at_c).front(), {9, 81, 18}, {9, 81, 18}, 2, -1);
}

TEST(SolveLink, RefusesAndFails) {
    const auto refused = [](const LinkData& data) {
        const auto answer = SolveLink(data);
        return std::holds_alternative<text::Refusal>(answer) ? std::get<text::Refusal>(answer).text
                                                             : "solved";
    };
    EXPECT_EQ(refused({{0, 0, 0}, 2, 2, 9, 57, {}}), kEqualAccelerations);
    EXPECT_EQ(refused({{0, 0, 0}, 0.3, 0.1 * 3, 9, 57, {}}), kEqualAccelerations);
    // Beyond what the first acceleration alone reaches: 81 at t = 9.
    EXPECT_EQ(refused({{0, 0, 0}, 2, -1, 9, 100, {}}), kNoLink);
    // Speed 30 at t = 9 asks for a junction before a.
    EXPECT_EQ(refused({{0, 0, 0}, 2, -1, 9, {}, 30}), kNoLink);
    EXPECT_EQ(refused({{0, 0, 0}, 2, -1, {}, 57, 100}), kNoLink);
    EXPECT_EQ(refused({{0, 0, 0}, {}, 1, 4, 3, 4}), kNoLink);
    EXPECT_EQ(refused({{0, 0, 0}, 1, {}, 4, 3, 4}), kNoLink);
    EXPECT_EQ(refused({{5, 0, 0}, 2, -1, 4, 57, {}}), kNoLink) << "c before a";
    // Thrown up at 10 under -10 it turns at 5; the junction would lie at (-100 - 200)/(-10) = 30.
    EXPECT_EQ(refused({{0, 0, 10}, -10, -5, {}, -20, 0}), kNoLink);
    // The second stretch alone, begun with 2, comes to 16 with 6 in 4; the first one alone to 8 with 4.
    EXPECT_EQ(refused({{0, 0, 0}, {}, 1, 4, 16, 6}), kNoLink);
    EXPECT_EQ(refused({{0, 0, 0}, 1, {}, 4, 8, 6}), kNoLink);
    EXPECT_EQ(FailureOf([&] { (void)refused({{0, 0, 0}, 2, -1, 9, 57, 6}); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([&] { (void)refused({{0, 0, 0}, 2, {}, {}, 57, 6}); }), FailureCode::TypeMismatch);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
