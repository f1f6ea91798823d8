#include "mechanics/motion/planting.h"

#include <gtest/gtest.h>

#include "../../failure_code.h"
#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;
using tavrelo::testing::FailureOf;

struct LinesCase {
    const char* name;
    int mover;
    int stretch;
    int base;
    Column data;
    const char* a;
    const char* position;
    const char* speed;
};

// The no-parameter kind is the polynomial expanded around t = 0: x0 = a t^2 / 2 - v t + x, v0 = v - a t.
TEST(Planting, WritesTheEquationsOfEveryKind) {
    const std::vector<LinesCase> cases = {
        {"fall", 1, 1, 0, {"0", "0", "0"}, "9.8", "x = 4.9 t¡2", "v = 9.8 t"},
        {"throw", 1, 1, 0, {"0", "25", "15"}, "-9.8", "x =  ;- 4.9 t¡2 + 15 t + 25", "v =  ;- 9.8 t + 15"},
        {"late base", 1, 1, 2, {"2", "1", "3"}, "4", "x = 2 t¡2 ;- 5 t + 3", "v = 4 t ;- 5"},
        {"uniform", 1, 1, 0, {"0", "0", "5"}, "0", "x = 5 t", "v = 5"},
        {"rest", 1, 1, 0, {"0", "0", "0"}, "0", "x = 0", "v = 0"},
        {"unit coefficients", 2, 1, 0, {"0", "1", "1"}, "2", "X = t¡2 + t + 1", "V = 2 t + 1"},
        {"unknown speed", 1, 1, 0, {"0", "3", ""}, "2", "x = t¡2 + v!0 t + 3", "v = 2 t + v!0"},
        {"unknown speed, late",
         1,
         2,
         3,
         {"2", "0", ""},
         "-9.8",
         "x' =  ;- 4.9 (t ;- 2)¡2 + v'!3 (t ;- 2)",
         "v' =  ;- 9.8 (t ;- 2) + v'!3"},
        {"unknown acceleration", 1, 1, 0, {"0", "5", "10"}, "", "x = 5 + 10 t + 0.5 a t¡2", "v = 10 + a t"},
        {"unknown acceleration, early base",
         2,
         1,
         1,
         {"-2", "-5", "-1"},
         "",
         "X =  ;- 5 ;- (t + 2) + 0.5 A (t + 2)¡2",
         "V =  ;- 1 + A (t + 2)"},
        {"both unknown",
         1,
         3,
         4,
         {"1.5", "0", ""},
         "",
         "x'' = v''!4 (t ;- 1.5) + 0.5 a'' (t ;- 1.5)¡2",
         "v'' = v''!4 + a'' (t ;- 1.5)"},
        {"rounded", 1, 1, 0, {"0", "0", "3.33333"}, "0.0002", "x = 3.333 t", "v = 3.333"},
    };
    for (const LinesCase& each : cases) {
        SCOPED_TRACE(each.name);
        const Equations planted =
            PlantedFrom({each.mover, each.stretch, each.base, each.data.t, each.data.x, each.data.v, each.a});
        const EquationLines lines = LinesOf(planted, each.mover, each.stretch, kDecimals);
        EXPECT_EQ(lines.position, each.position);
        EXPECT_EQ(lines.speed, each.speed);
    }
}

TEST(Planting, TellsTheBaseInTheReport) {
    Problem problem = OneMover("g");
    Fill(problem, 1, 2, {"-1.5", "20.12345", ""});
    const Step step = ClickPoint(problem, Procedure::Plant, {1, 1, 2}, kDecimals);
    EXPECT_EQ(
        Shown(step),
        (Lines{"clear 1", "clear 2", "show board", "board 1: x = 4.9 (t + 1.5)¡2 + v!2 (t + 1.5) + 20.123",
               "board 2: v = 9.8 (t + 1.5) + v!2", "Plantear ecs. del móvil 1, tramo 1, punto base: 2",
               "t!2 = -1.5, x!2 = 20.123, v!2 = ?, a = 9.8"}));
}

TEST(Planting, UsesTheSlotsOfItsStretch) {
    const Problem divided = Divided(3, {7, 3, 5});
    struct SlotCase {
        points::PointPlace place;
        const char* first;
    };
    for (const SlotCase& each : {SlotCase{{1, 1, 0}, "clear 1"}, SlotCase{{1, 2, 2}, "clear 3"},
                                 SlotCase{{1, 3, 4}, "clear 5"}, SlotCase{{2, 1, 0}, "clear 7"}}) {
        Problem problem = divided;
        Fill(problem, each.place.mover, each.place.point, {"0", "0", "1"});
        EXPECT_EQ(Shown(ClickPoint(problem, Procedure::Plant, each.place, kDecimals)).front(), each.first);
    }
}

TEST(Planting, ReplacesTheEarlierKind) {
    const Problem complete = PlantedOnOrigin({"0", "0", "5"}, "2");
    EXPECT_EQ(complete.EquationsOf(1, 1).kind, EquationKind::Complete);
    Problem without_speed = complete;
    Fill(without_speed, 1, 0, {"0", "0", ""});
    const Problem replanted = After(ClickPoint(without_speed, Procedure::Plant, {1, 1, 0}, kDecimals));
    EXPECT_EQ(replanted.EquationsOf(1, 1).kind, EquationKind::SpeedUnknown);
}

TEST(Planting, KeepsTheEquationsWhateverTheTableHoldsLater) {
    Problem problem = PlantedOnOrigin({"0", "1", "5"}, "2");
    problem.accelerations[0] = TypedAcceleration("7");
    problem = WithEmptyTable(problem);
    EXPECT_EQ(problem.EquationsOf(1, 1).Expanded(), (Motion{1, 5, 2}));
    Fill(problem, 1, 1, {"2", "", ""});
    const Step step = ClickPoint(problem, Procedure::Substitute, {1, 1, 1}, kDecimals);
    EXPECT_EQ(ShownAt(After(step), points::kPositionRow, 2), "15");  // 1 + 5*2 + 4
}

TEST(Planting, NeedsTimeAndPositionOfTheBase) {
    for (const Column& column : {Column{"", "1", "2"}, Column{"1", "", "2"}, Column{"", "", ""}}) {
        Problem problem = OneMover("2");
        Fill(problem, 1, 1, column);
        EXPECT_EQ(RefusalOf(ClickPoint(problem, Procedure::Plant, {1, 1, 1}, kDecimals)),
                  "Debes especificar el tiempo y la posición del punto base.");
    }
}

TEST(Planting, FailsOnDataThatAreNoNumbersAndKeepsWhatWasPlanted) {
    const Problem planted = PlantedOnOrigin({"0", "0", "5"}, "2");
    for (const Column& column : {Column{"t0+5", "0", "1"}, Column{"1", "2*x0", ""}, Column{"0", "t", "1"}}) {
        Problem problem = planted;
        Fill(problem, 1, 1, column);
        const Problem before = problem;
        EXPECT_EQ(FailureOf([&] {
                      ClickPoint(problem, Procedure::Plant, {1, 1, 1}, kDecimals);
                  }),
                  numeric::FailureCode::TypeMismatch);
        EXPECT_EQ(problem, before);
    }
    Problem with_text = planted;
    with_text.accelerations[0] = TypedAcceleration("abc");
    EXPECT_EQ(FailureOf([&] {
                  ClickPoint(with_text, Procedure::Plant, {1, 1, 0}, kDecimals);
              }),
              numeric::FailureCode::TypeMismatch);
}

TEST(Planting, LeavesATypedAccelerationAsTypedAndShowsAFoundOne) {
    EXPECT_EQ(PlantedOnOrigin({"0", "0", "5"}, "2.0").accelerations[0].shown, "2.0");
    const Problem planted = PlantedOnOrigin({"0", "0", "5"}, "");
    const Outcome outcome = Plant(planted, {1, 1, 0, 0, 0, 5, 1.0 / 3.0}, kDecimals);
    EXPECT_EQ(outcome.problem.accelerations[0].shown, "0.333");
    EXPECT_EQ(outcome.problem.accelerations[0].stored, text::Value(1.0 / 3.0));
}

TEST(Planting, EraseForgetsAllEquationsAndClearsTheirSlots) {
    const Problem planted = PlantedOnOrigin({"0", "0", "5"}, "2");
    const Outcome outcome = EraseEquations(planted);
    EXPECT_EQ(outcome.problem.EquationsOf(1, 1), Equations{});
    EXPECT_EQ(outcome.problem.table, planted.table);
    EXPECT_EQ(outcome.problem.accelerations, planted.accelerations);
    EXPECT_EQ(outcome.events.size(), 8U);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
