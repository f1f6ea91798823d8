// The procedures that work on a typed text, each by its name; none of them changes the problem.

#include "mechanics/motion/typed_procedures.h"

#include <gtest/gtest.h>

#include "planted_problems.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;

Problem Pursuit() {
    Problem problem = TwoMovers(4);
    GiveMotion(problem, 1, 1, {0, 22, 0});
    GiveMotion(problem, 2, 1, {0, 0, 2});
    SetTime(problem, 2, 0, 0);
    SetCell(problem, 2, 0, points::kPositionRow, 0);
    problem.accelerations[SlotOf(2, 1)] = TypedAcceleration("2");
    return problem;
}

TEST(TypedProcedures, EachRunsWhatItsNameSays) {
    struct Row {
        Procedure procedure;
        const char* typed;
        const char* last_line;
    };
    for (const Row& row : {
             Row{Procedure::Interval, "dt = 3, a = 2, vi = 4", "v!f = 10, ;Dx = 21"},
             {Procedure::Interval, "dt = 3", "refused: El número de datos debe ser 3 ó 4."},
             {Procedure::PositionDifference, "0", "t = 0, x = 0, X = 0"},
             {Procedure::PositionRatio, "2", "t = 0, x = 0, X = 0"},
             {Procedure::SpeedDifference, "2", "t = 10, v = 22, V = 20"},
             {Procedure::SpeedRatio, "11", "t = 1, v = 22, V = 2"},
             // 22 t = X = (V0 + t) t and V0 + 2 t = 22: t = 0.
             {Procedure::PositionAndSpeedRatio, "1, 1", "X = 0, V = 22"},
             {Procedure::SystemVA, "1, 2, 8, 3, -1, 3", "v!0 = 2, a = 3"},
             {Procedure::SystemV2A, "2, 4, 20, 2, 0, 6", "v!0 = 3, a = 0.5"},
             {Procedure::SystemV2A2A, "1, 1, 1, 15, 0, 3, 6", "v!0 = #mame 3, a = 2"},
             {Procedure::SystemV2A2AV2A, "1, 1, 0, 13, 1, -2, 5", "v!0 = #mame 3, a = 2"},
             {Procedure::Quadratic, "1, -5, 6", "x!1 = 3, x!2 = 2"},
         }) {
        const Problem problem = Pursuit();
        const Step step = RunTyped(problem, row.procedure, row.typed, kDecimals);
        ASSERT_FALSE(LinesOf(step).empty()) << row.typed;
        EXPECT_EQ(LinesOf(step).back(), row.last_line) << row.typed;
        if (const auto* outcome = std::get_if<Outcome>(&step)) {
            EXPECT_EQ(outcome->problem, problem);
            EXPECT_EQ(outcome->events.size(), 1U);
        }
    }
}

TEST(TypedProcedures, AProcedureOfClicksDoesNothing) {
    for (const Procedure procedure : {Procedure::Plant, Procedure::Graph, Procedure::Link}) {
        const Step step = RunTyped(Pursuit(), procedure, "1", kDecimals);
        EXPECT_TRUE(std::get<Outcome>(step).events.empty());
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
