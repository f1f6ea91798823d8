#include "mechanics/motion/problem.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using tavrelo::testing::FailureOf;

TEST(Acceleration, KnowsGravity) {
    EXPECT_EQ(TypedAcceleration("g"), (points::Cell{9.8, "9.8"}));
    EXPECT_EQ(TypedAcceleration(" -g "), (points::Cell{-9.8, "-9.8"}));
    EXPECT_EQ(TypedAcceleration(" 2.5 "), (points::Cell{"2.5", " 2.5 "}));
    EXPECT_EQ(TypedAcceleration("  "), (points::Cell{{}, "  "}));
    EXPECT_EQ(TypedAcceleration("2g").stored, text::Value("2g"));
}

TEST(Acceleration, RefusesWhatIsNoNumber) {
    for (const char* text : {"", " ", "2", "-2.5", "g", "-g", "1E+3"})
        EXPECT_FALSE(CheckAcceleration(text)) << text;
    for (const char* text : {"a", "2g", "1,5", "--1"}) {
        ASSERT_TRUE(CheckAcceleration(text)) << text;
        EXPECT_EQ(CheckAcceleration(text)->text, "Valor no numérico.");
    }
}

Problem Worked() {
    Problem problem = PlantedOnOrigin({"0", "0", "20"}, "-9.8");
    Fill(problem, 1, 1, {"", "15", ""});
    return After(ClickPoint(problem, Procedure::Substitute, {1, 1, 1}, kDecimals));
}

TEST(Survival, AnEmptiedTableKeepsTheRest) {
    const Problem worked = Worked();
    Problem expected = worked;
    expected.table = points::Table(points::kMotionRows);
    EXPECT_EQ(WithEmptyTable(worked), expected);
}

TEST(Survival, ANewConfigurationKeepsCellsAndEquations) {
    const Problem worked = Worked();
    const Problem reconfigured = Reconfigured(worked, 3);
    EXPECT_EQ(reconfigured.table, worked.table);
    EXPECT_EQ(reconfigured.equations, worked.equations);
    EXPECT_EQ(reconfigured.results, worked.results);
    EXPECT_EQ(reconfigured.configuration.stage, points::Stage::Pending);
    EXPECT_EQ(reconfigured.accelerations[0], points::Cell{});
    EXPECT_EQ(FailureOf([&] { Reconfigured(worked, 4); }), numeric::FailureCode::SubscriptRange);
}

TEST(Survival, ForgottenEquationsLeaveTheRest) {
    const Problem worked = Worked();
    Problem expected = worked;
    expected.equations = {};
    EXPECT_EQ(WithoutEquations(worked), expected);
}

// x = 20 t - 4.9 t^2 = 15 at t = 3.0914 (taken) and t = 0.9902, where v = 10.296.
TEST(Results, PassEitherSolutionToTheTable) {
    const Problem worked = Worked();
    const Problem passed = WithResultsPassed(worked, 1, kDecimals);
    EXPECT_EQ(ShownAt(passed, points::kTimeRow, 2), "0.99");
    EXPECT_EQ(ShownAt(passed, points::kPositionRow, 2), "15");
    EXPECT_EQ(ShownAt(passed, points::kSpeedRow, 2), "10.296");
    EXPECT_NEAR(passed.table.Stored(points::kTimeRow, 2).Number(), (20 - std::sqrt(106.0)) / 9.8, 1e-12);
    EXPECT_EQ(FailureOf([&] { WithResultsPassed(worked, 2, kDecimals); }),
              numeric::FailureCode::SubscriptRange);
}

TEST(Results, PassBothEndsOfAnIntervalOfMoverTwo) {
    Problem problem = Divided(2, {4});  // points 0 to 3, then 0 to 4 in columns 5 to 9
    Fill(problem, 2, 0, {"0", "0", "0"});
    problem.accelerations[3] = TypedAcceleration("2");
    problem = After(ClickPoint(problem, Procedure::Plant, {2, 1, 0}, kDecimals));
    Fill(problem, 2, 3, {"t1+3", "x1+21", ""});
    const Problem passed = WithResultsPassed(
        After(ClickPoint(problem, Procedure::Substitute, {2, 1, 3}, kDecimals)), 0, kDecimals);
    EXPECT_EQ(ShownAt(passed, points::kTimeRow, 6), "2");
    EXPECT_EQ(ShownAt(passed, points::kPositionRow, 8), "25");
    EXPECT_EQ(ShownAt(passed, points::kSpeedRow, 8), "10");
}

TEST(TurnSpeed, GivesTheMomentOfOppositeSpeed) {
    Problem problem = PlantedOnOrigin({"0", "25", "15"}, "-9.8");
    const auto turned = TurnSpeed(problem, {1, 1, 0}, kDecimals);
    ASSERT_TRUE(turned);
    const Problem after = After(*turned);
    EXPECT_EQ(ShownAt(after, points::kTimeRow, 1), "3.061");  // 30/9.8
    EXPECT_EQ(ShownAt(after, points::kPositionRow, 1), "25");
    EXPECT_EQ(ShownAt(after, points::kSpeedRow, 1), "-15");
    EXPECT_EQ(after.table.Stored(points::kTimeRow, 1), text::Value((-15.0 - 15.0) / -9.8));
}

TEST(TurnSpeed, ShowsNoMinusZero) {
    Problem problem = PlantedOnOrigin({"0", "0", "10"}, "-10");
    Fill(problem, 1, 2, {"", "", "0"});
    const Problem after = After(*TurnSpeed(problem, {1, 1, 2}, kDecimals));
    EXPECT_EQ(ShownAt(after, points::kSpeedRow, 3), "0");
    EXPECT_EQ(ShownAt(after, points::kTimeRow, 3), "1");
}

TEST(TurnSpeed, IsAnOrdinaryClickWithoutEquationsOrSpeed) {
    Problem problem = PlantedOnOrigin({"0", "0", "10"}, "-10");
    EXPECT_FALSE(TurnSpeed(problem, {1, 1, 1}, kDecimals));
    Fill(problem, 1, 1, {"", "", "2*v0"});
    EXPECT_FALSE(TurnSpeed(problem, {1, 1, 1}, kDecimals));
    EXPECT_FALSE(TurnSpeed(WithoutEquations(problem), {1, 1, 0}, kDecimals));
    const auto uniform = TurnSpeed(PlantedOnOrigin({"0", "0", "10"}, "0"), {1, 1, 0}, kDecimals);
    ASSERT_TRUE(uniform);
    EXPECT_EQ(RefusalOf(*uniform), "Dato no aplicable al movimiento uniforme.");
}

TEST(Slots, StandForStretches) {
    EXPECT_EQ(SlotOf(1, 3), 2U);
    EXPECT_EQ(SlotOf(2, 1), 3U);
    EXPECT_EQ(BoardSlotOf(1, 1), 1);
    EXPECT_EQ(BoardSlotOf(1, 3), 5);
    EXPECT_EQ(BoardSlotOf(2, 1), 7);
    EXPECT_EQ(FailureOf([] { SlotOf(2, 2); }), numeric::FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { SlotOf(1, 4); }), numeric::FailureCode::SubscriptRange);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
