#include "mechanics/motion/substitution.h"

#include <gtest/gtest.h>

#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;

/// A click with "substitute" on a point of a column, the equations being planted.
Step Click(Problem problem, int point, const Column& column) {
    Fill(problem, 1, point, column);
    return ClickPoint(problem, Procedure::Substitute, {1, 1, point}, kDecimals);
}

struct PointCase {
    const char* name;
    Column base;
    const char* a;
    Column given;
    Column found;  // cells of the column afterwards
    Lines report;
};

TEST(SubstitutePoint, CompletesThePoint) {
    const std::vector<PointCase> cases = {
        // x = 25 + 15 t - 4.9 t^2 at t = 2: 25 + 30 - 19.6 = 35.4; v = 15 - 19.6
        {"t",
         {"0", "25", "15"},
         "-9.8",
         {"2", "", ""},
         {"2", "35.4", "-4.6"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   t!3 = 2", "Se halló: x!3 = 35.4, v!3 = ;-4.6"}},
        // t alone counts, whatever x and v hold
        {"t with others",
         {"0", "0", "0"},
         "2",
         {"3", "1", "1"},
         {"3", "9", "6"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   t!3 = 3", "Se halló: x!3 = 9, v!3 = 6"}},
        // v = -15: t = (-15 - 15)/(-9.8) = 3.0612; back at 25
        {"v",
         {"0", "25", "15"},
         "-9.8",
         {"", "", "-15"},
         {"3.061", "25", "-15"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   v!3 = -15", "Se halló: t!3 = 3.061, x!3 = 25"}},
        // x = t^2 + 4 t = 12 at t = 2 (v = 8) and t = -6 (v = -8): the future one
        {"x, one future root",
         {"0", "0", "4"},
         "2",
         {"", "12", ""},
         {"2", "12", "8"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 12", "Se halló: t!3 = 2, v!3 = 8",
          "o bien t!3 = ;-6, v!3 = ;-8", "show results"}},
        // 20 t - 4.9 t^2 = 15: t = (20 +- sqrt(106))/9.8 = 3.0914 and 0.9902; v = -+10.296; the later one
        // first
        {"x, two future roots",
         {"0", "0", "20"},
         "-9.8",
         {"", "15", ""},
         {"3.091", "15", "-10.296"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 15", "Se halló: t!3 = 3.091, v!3 = ;-10.296",
          "o bien t!3 = 0.99, v!3 = 10.296", "show results"}},
        // t^2 + 8 t + 20 = 8 at t = -6 and -2, both past: the first
        {"x, two past roots",
         {"0", "20", "8"},
         "2",
         {"", "8", ""},
         {"-6", "8", "-4"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 8", "Se halló: t!3 = ;-6, v!3 = ;-4",
          "o bien t!3 = ;-2, v!3 = 4", "show results"}},
        // t^2 + 4 t = 0 at t = 0 and t = -4: the present counts as future; 2.25 at t = 0.5 and t = -4.5
        {"x, a present root",
         {"0", "0", "4"},
         "2",
         {"", "0", ""},
         {"0", "0", "4"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 0", "Se halló: t!3 = 0, v!3 = 4",
          "o bien t!3 = ;-4, v!3 = ;-4", "show results"}},
        {"x, a near root",
         {"0", "0", "4"},
         "2",
         {"", "2.25", ""},
         {"0.5", "2.25", "5"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 2.25", "Se halló: t!3 = 0.5, v!3 = 5",
          "o bien t!3 = ;-4.5, v!3 = ;-5", "show results"}},
        {"x, uniform",
         {"0", "10", "5"},
         "0",
         {"", "-5", ""},
         {"-3", "-5", "5"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = -5", "Se halló: t!3 = ;-3, v!3 = 5"}},
        // the top of x = 20 t - 5 t^2: 20 at t = 2 only
        {"x, the turning point",
         {"0", "0", "20"},
         "-10",
         {"", "20", ""},
         {"2", "20", "0"},
         {"Sust. en las ecs. del móvil 1, tramo 1:   x!3 = 20", "Se halló: t!3 = 2, v!3 = 0"}},
    };
    for (const PointCase& each : cases) {
        SCOPED_TRACE(each.name);
        const Step step = Click(PlantedOnOrigin(each.base, each.a), 3, each.given);
        EXPECT_EQ(Shown(step), each.report);
        const Problem after = After(step);
        EXPECT_EQ(ShownAt(after, points::kTimeRow, 4), each.found.t);
        EXPECT_EQ(ShownAt(after, points::kPositionRow, 4), each.found.x);
        EXPECT_EQ(ShownAt(after, points::kSpeedRow, 4), each.found.v);
        ASSERT_FALSE(after.results.solutions.empty());
        EXPECT_EQ(after.results.solutions.front().first.point, 3);
        EXPECT_FALSE(after.results.solutions.front().second);
    }
}

// From rest at 5.18424585385669 with -1.3 it never goes beyond; the last digit of the copied place is
// rounding.
TEST(SubstitutePoint, ReachesTheTurningPlaceInSpiteOfRounding) {
    const Problem planted = PlantedOnOrigin({"0", "5.18424585385669", "0"}, "-1.3");
    const Step step = Click(planted, 3, {"", "5.1842458538567", ""});
    ASSERT_EQ(RefusalOf(step), "");
    EXPECT_EQ(ShownAt(After(step), points::kTimeRow, 4), "0");
    EXPECT_EQ(ShownAt(After(step), points::kSpeedRow, 4), "0");
}

TEST(SubstitutePoint, StoresAllDigits) {
    const Problem after = After(Click(PlantedOnOrigin({"0", "0", "0"}, "3"), 1, {"", "", "10"}));
    EXPECT_EQ(after.table.Stored(points::kTimeRow, 2), text::Value(10.0 / 3.0));
}

TEST(SubstitutePoint, NamesTheStretch) {
    Problem problem = Divided(3, {7, 3, 5});
    Fill(problem, 1, 2, {"1", "0", "2"});
    problem.accelerations[1] = TypedAcceleration("4");
    problem = After(ClickPoint(problem, Procedure::Plant, {1, 2, 2}, kDecimals));
    Fill(problem, 1, 3, {"2", "", ""});
    // x' = 2 (t - 1) + 2 (t - 1)^2 at t = 2
    EXPECT_EQ(Shown(ClickPoint(problem, Procedure::Substitute, {1, 2, 3}, kDecimals)),
              (Lines{"Sust. en las ecs. del móvil 1, tramo 2:   t!3 = 2", "Se halló: x'!3 = 4, v'!3 = 6"}));
}

struct IntervalCase {
    const char* name;
    Column base;
    const char* a;
    Column given;  // of point 3, over point 1
    Lines report;
};

TEST(SubstituteInterval, FindsBothEnds) {
    const Column rest = {"0", "0", "0"};
    const std::vector<IntervalCase> cases = {
        // x = t^2: from t = 2 to t = 5 it goes from 4 to 25
        {"Dt, Dx",
         rest,
         "2",
         {"t1+3", "x1+21", ""},
         {"Sust. en las ecs. del móvil 1, tramo 1 los datos:", ";Dt = 3, ;Dx = 21",
          "t!1 = 2, x!1 = 4, v!1 = 4", "t!3 = 5, x!3 = 25, v!3 = 10", "show results"}},
        {"Dx, Dv",
         rest,
         "2",
         {"", "x1+21", "v1+6"},
         {"Sust. en las ecs. del móvil 1, tramo 1 los datos:", ";Dx = 21, ;Dv = 6",
          "t!1 = 2, x!1 = 4, v!1 = 4", "t!3 = 5, x!3 = 25, v!3 = 10", "show results"}},
        // (t + 1)^2 = 4 t^2: t = 1 and t = -1/3
        {"Dt, C[x]",
         rest,
         "2",
         {"t1+1", "4*x1", ""},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dt = 1, x!3 = 4 x!1", "t!1 = 1, x!1 = 1, v!1 = 2",
          "t!3 = 2, x!3 = 4, v!3 = 4", "--------------", "t!1 = ;-0.333, x!1 = 0.111, v!1 = ;-0.667",
          "t!3 = 0.667, x!3 = 0.444, v!3 = 1.333", "show results"}},
        // x = t^2 + 3 t + 1 keeps its value over Dt = 2 about t = -1.5: from -2.5 to -0.5, x = -0.25
        {"Dt, C[x] with C = 1",
         {"0", "1", "3"},
         "2",
         {"t1+2", "1*x1", ""},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dt = 2, x!3 = x!1",
          "t!1 = ;-2.5, x!1 = ;-0.25, v!1 = ;-2", "t!3 = ;-0.5, x!3 = ;-0.25, v!3 = 2", "show results"}},
        // v = 3 + 2 t doubles in Dt = 2: from v = 4 (t = 0.5) to v = 8 (t = 2.5)
        {"Dt, C[v]",
         {"0", "0", "3"},
         "2",
         {"t1+2", "", "2*v1"},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dt = 2, v!3 = 2 v!1",
          "t!1 = 0.5, x!1 = 1.75, v!1 = 4", "t!3 = 2.5, x!3 = 13.75, v!3 = 8", "show results"}},
        // 9 t^2 - t^2 = 32: t = 2 and -2
        {"Dx, C[t]",
         rest,
         "2",
         {"3*t1", "x1+32", ""},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dx = 32, t!3 = 3 t!1", "t!1 = 2, x!1 = 4, v!1 = 4",
          "t!3 = 6, x!3 = 36, v!3 = 12", "--------------", "t!1 = ;-2, x!1 = 4, v!1 = ;-4",
          "t!3 = ;-6, x!3 = 36, v!3 = ;-12", "show results"}},
        // x = 5 t + t^2: x(-t) - x(t) = -10 t = 20 at t = -2
        {"Dx, C[t] with C = -1",
         {"0", "0", "5"},
         "2",
         {"-t1", "x1+20", ""},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dx = 20, t!3 = ;-t!1",
          "t!1 = ;-2, x!1 = ;-6, v!1 = 1", "t!3 = 2, x!3 = 14, v!3 = 9", "show results"}},
        // (9 - 1) vi^2 = 2 * 2 * 32: vi = 4 and -4
        {"Dx, C[v]",
         rest,
         "2",
         {"", "x1+32", "3*v1"},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dx = 32, v!3 = 3 v!1", "t!1 = 2, x!1 = 4, v!1 = 4",
          "t!3 = 6, x!3 = 36, v!3 = 12", "--------------", "t!1 = ;-2, x!1 = 4, v!1 = ;-4",
          "t!3 = ;-6, x!3 = 36, v!3 = ;-12", "show results"}},
        // 2 (3 t - t) = 8: t = 2
        {"Dv, C[t]",
         rest,
         "2",
         {"3*t1", "", "v1+8"},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dv = 8, t!3 = 3 t!1", "t!1 = 2, x!1 = 4, v!1 = 4",
          "t!3 = 6, x!3 = 36, v!3 = 12", "show results"}},
        // x = v^2/4: (v + 2)^2 = 4 v^2 at v = 2 and v = -2/3
        {"Dv, C[x]",
         rest,
         "2",
         {"", "4*x1", "v1+2"},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dv = 2, x!3 = 4 x!1", "t!1 = 1, x!1 = 1, v!1 = 2",
          "t!3 = 2, x!3 = 4, v!3 = 4", "--------------", "t!1 = ;-0.333, x!1 = 0.111, v!1 = ;-0.667",
          "t!3 = 0.667, x!3 = 0.444, v!3 = 1.333", "show results"}},
        // x = 1 + t^2 is the same at v = -2 and v = 2
        {"Dv, C[x] with C = 1",
         {"0", "1", "0"},
         "2",
         {"", "1*x1", "v1+4"},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dv = 4, x!3 = x!1",
          "t!1 = ;-1, x!1 = 2, v!1 = ;-2", "t!3 = 1, x!3 = 2, v!3 = 2", "show results"}},
        // uniform: x = 10 + 5 t; 10 + 5 (t + 2) = 2 (10 + 5 t): t = 0
        {"Dt, C[x], uniform",
         {"0", "10", "5"},
         "0",
         {"t1+2", "2*x1", ""},
         {"Sustituir en las ecs. sin parámetros", "Datos: ;Dt = 2, x!3 = 2 x!1", "t!1 = 0, x!1 = 10, v!1 = 5",
          "t!3 = 2, x!3 = 20, v!3 = 5", "show results"}},
    };
    for (const IntervalCase& each : cases) {
        SCOPED_TRACE(each.name);
        const Step step = Click(PlantedOnOrigin(each.base, each.a), 3, each.given);
        EXPECT_EQ(Shown(step), each.report);
        const Problem after = After(step);
        ASSERT_FALSE(after.results.solutions.empty());
        EXPECT_EQ(after.results.solutions.front().first.point, 1);
        ASSERT_TRUE(after.results.solutions.front().second);
        EXPECT_EQ(after.results.solutions.front().second->point, 3);
        EXPECT_EQ(ShownAt(after, points::kTimeRow, 2), "")
            << "the table waits for the user to pass a solution";
    }
}

TEST(SubstituteInterval, DoesNothingWithoutACase) {
    const Problem planted = PlantedOnOrigin({"0", "0", "0"}, "2");
    for (const Column& column :
         {Column{"", "", ""}, Column{"t1+1", "", ""}, Column{"t1+1", "x2+3", ""}, Column{"t1+1", "", "v2+3"},
          Column{"2*t1", "2*x1", ""}, Column{"t1+1", "x2*", ""}}) {
        Problem problem = planted;
        Fill(problem, 1, 3, column);
        const Step step = ClickPoint(problem, Procedure::Substitute, {1, 1, 3}, kDecimals);
        if (std::holds_alternative<text::Refusal>(step)) {
            EXPECT_EQ(RefusalOf(step), "Error en el dato x2*");
            continue;
        }
        EXPECT_TRUE(Shown(step).empty());
        EXPECT_EQ(After(step), problem);
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
