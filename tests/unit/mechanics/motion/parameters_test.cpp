#include "mechanics/motion/parameters.h"

#include <gtest/gtest.h>

#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;

// The motion of most cases: x = 3 + 4 t + t^2, v = 4 + 2 t, so
//   t   0   1   2   3   4   5
//   x   3   8  15  24  35  48
//   v   4   6   8  10  12  14
const Column kBase = {"0", "3", "4"};
// The same motion with its base at t = 1.
const Column kLateBase = {"1", "8", "6"};

enum class Unknown { Speed, Acceleration, Both };

Problem Planted(const Column& base, Unknown unknown) {
    const bool has_speed = unknown == Unknown::Acceleration;
    return PlantedOnOrigin({base.t, base.x, has_speed ? base.v : ""}, unknown == Unknown::Speed ? "2" : "");
}

struct DataCase {
    const char* name;
    Column base;
    Column start;  // point 1
    Column given;  // point 3, clicked
};

Step Click(const DataCase& each, Unknown unknown) {
    Problem problem = Planted(each.base, unknown);
    Fill(problem, 1, 1, each.start);
    Fill(problem, 1, 3, each.given);
    return ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 3}, kDecimals);
}

const DataCase kTimePosition = {"t, x", kBase, {}, {"2", "15", ""}};
const DataCase kTimeSpeed = {"t, v", kBase, {}, {"2", "", "8"}};
const DataCase kPositionSpeed = {"x, v", kBase, {}, {"", "15", "8"}};
const DataCase kTimesDx = {"ti, tf, Dx", kBase, {"1", "", ""}, {"3", "x1+16", ""}};
const DataCase kPositionsDt = {"xi, xf, Dt", kBase, {"", "8", ""}, {"t1+2", "24", ""}};
const DataCase kPositionsDv = {"xi, xf, Dv", kBase, {"", "8", ""}, {"", "24", "v1+4"}};
const DataCase kTimesXFactor = {"ti, tf, C[x]", kBase, {"1", "", ""}, {"5", "6*x1", ""}};
const DataCase kTimesVFactor = {"ti, tf, C[v]", kBase, {"1", "", ""}, {"4", "", "2*v1"}};
const DataCase kPositionsTFactor = {"xi, xf, C[t]", kBase, {"", "8", ""}, {"2*t1", "15", ""}};
const DataCase kPositionsVFactor = {"xi, xf, C[v]", kBase, {"", "8", ""}, {"", "35", "2*v1"}};
const DataCase kSpeedsTFactor = {"vi, vf, C[t]", kLateBase, {"", "", "8"}, {"2*t1", "", "12"}};
const DataCase kSpeedsXFactor = {"vi, vf, C[x]", kBase, {"", "", "6"}, {"", "3*x1", "10"}};

struct FoundCase {
    DataCase data;
    const char* data_line;
    const char* found;
};

TEST(UnknownSpeed, IsFoundFromEveryDataSet) {
    const std::vector<FoundCase> cases = {
        {kTimePosition, "t!3 = 2, x!3 = 15", "Se halló: v!0 = 4"},
        {kTimeSpeed, "t!3 = 2, v!3 = 8", "Se halló: v!0 = 4"},
        // v0^2 = 64 - 2*2*12 = 16
        {kPositionSpeed, "x!3 = 15, v!3 = 8", "Se hallaron: v!0 = 4  o  v!0 = ;-4"},
        // 16 = 2 v0 + (9 - 1)
        {kTimesDx, "t!1 = 1, t!3 = 3, ;Dx = 16", "Se halló: v!0 = 4"},
        // vi = 16/2 - 2 = 6, v0^2 = 36 - 2*2*5
        {kPositionsDt, "x!1 = 8, x!3 = 24, ;Dt = 2", "Se hallaron: v!0 = 4  o  v!0 = ;-4"},
        // 3 + 5 v0 + 25 = 6 (3 + v0 + 1)
        {kTimesXFactor, "t!1 = 1, t!3 = 5, x!3 = 6 x!1", "Se halló: v!0 = 4"},
        // v0 + 8 = 2 (v0 + 2)
        {kTimesVFactor, "t!1 = 1, t!3 = 4, v!3 = 2 v!1", "Se halló: v!0 = 4"},
        // 5 = v0 u + u^2, 12 = 2 v0 u + 4 u^2: u = 1 or -1
        {kPositionsTFactor, "x!1 = 8, x!3 = 15, t!3 = 2 t!1", "Se hallaron: v!0 = 4  o  v!0 = ;-4"},
        // v0^2 + 4*32 = 4 (v0^2 + 4*5)
        {kPositionsVFactor, "x!1 = 8, x!3 = 35, v!3 = 2 v!1", "Se hallaron: v!0 = 4  o  v!0 = ;-4"},
        // 8 = v + 2 (t - 1), 12 = v + 2 (2 t - 1): t = 2, v = 6
        {kSpeedsTFactor, "v!1 = 8, v!3 = 12, t!3 = 2 t!1", "Se halló: v!0 = 6"},
        // x1 = 3 + (36 - v0^2)/4, x3 = 3 + (100 - v0^2)/4 = 3 x1
        {kSpeedsXFactor, "v!1 = 6, v!3 = 10, x!3 = 3 x!1", "Se hallaron: v!0 = 4  o  v!0 = ;-4"},
    };
    for (const FoundCase& each : cases) {
        SCOPED_TRACE(each.data.name);
        const Lines lines = Shown(Click(each.data, Unknown::Speed));
        ASSERT_EQ(lines.size(), 4U);
        EXPECT_EQ(lines[0], "Sust. en ecs. con parámetro v!0 del móvil 1, tramo 1");
        EXPECT_EQ(lines[1], std::string("Datos: ") + each.data_line);
        EXPECT_EQ(lines[2], each.found);
    }
}

TEST(UnknownAcceleration, IsFoundFromEveryDataSet) {
    const std::vector<FoundCase> cases = {
        {kTimePosition, "t!3 = 2, x!3 = 15", "Se halló: a = 2"},
        {kTimeSpeed, "t!3 = 2, v!3 = 8", "Se halló: a = 2"},
        {kPositionSpeed, "x!3 = 15, v!3 = 8", "Se halló: a = 2"},
        {kTimesDx, "t!1 = 1, t!3 = 3, ;Dx = 16", "Se halló: a = 2"},
        // a^2 - 26 a + 48 = 0
        {kPositionsDt, "x!1 = 8, x!3 = 24, ;Dt = 2", "Se halló: a = 24 o bien a = 2"},
        // 16 a^2 - 26 a - 12 = 0
        {kPositionsDv, "x!1 = 8, x!3 = 24, ;Dv = 4", "Se halló: a = 2 o bien a = ;-0.375"},
        {kTimesXFactor, "t!1 = 1, t!3 = 5, x!3 = 6 x!1", "Se halló: a = 2"},
        {kTimesVFactor, "t!1 = 1, t!3 = 4, v!3 = 2 v!1", "Se halló: a = 2"},
        {kPositionsTFactor, "x!1 = 8, x!3 = 15, t!3 = 2 t!1", "Se halló: a = 2"},
        {kPositionsVFactor, "x!1 = 8, x!3 = 35, v!3 = 2 v!1", "Se halló: a = 2"},
        {kSpeedsTFactor, "v!1 = 8, v!3 = 12, t!3 = 2 t!1", "Se halló: a = 2"},
        {kSpeedsXFactor, "v!1 = 6, v!3 = 10, x!3 = 3 x!1", "Se halló: a = 2"},
    };
    for (const FoundCase& each : cases) {
        SCOPED_TRACE(each.data.name);
        const Lines lines = Shown(Click(each.data, Unknown::Acceleration));
        ASSERT_EQ(lines.size(), 4U);
        EXPECT_EQ(lines[0], "Sust. en ecs. con parámetro a del móvil 1, tramo 1");
        EXPECT_EQ(lines[1], std::string("Datos: ") + each.data_line);
        EXPECT_EQ(lines[2], each.found);
    }
}

TEST(BothUnknown, StatesTheEquationOfEveryDataSet) {
    // Each holds for v0 = 4 (6 with the late base) and a = 2.
    const std::vector<FoundCase> cases = {
        {kTimePosition, "t!3 = 2, x!3 = 15", "2 v!0 + 2 a = 12"},
        {kTimeSpeed, "t!3 = 2, v!3 = 8", "v!0 + 2 a = 8"},
        {kPositionSpeed, "x!3 = 15, v!3 = 8", "v!0¡2 + 24 a = 64"},
        {kTimesDx, "t!1 = 1, t!3 = 3, ;Dx = 16", "2 v!0 + 4 a = 16"},
        {kPositionsDt, "x!1 = 8, x!3 = 24, ;Dt = 2", "v!0¡2 ;- a¡2 + 26 a = 64"},
        {kPositionsDv, "x!1 = 8, x!3 = 24, ;Dv = 4", "v!0¡2 ;- 16 a¡2 + 26 a = 4"},
        {kTimesXFactor, "t!1 = 1, t!3 = 5, x!3 = 6 x!1", " ;- v!0 + 9.5 a = 15"},
        {kTimesVFactor, "t!1 = 1, t!3 = 4, v!3 = 2 v!1", " ;- v!0 + 2 a = 0"},
        {kPositionsTFactor, "x!1 = 8, x!3 = 15, t!3 = 2 t!1", "8 v!0¡2 ;- 64 a = 0"},
        {kPositionsVFactor, "x!1 = 8, x!3 = 35, v!3 = 2 v!1", "3 v!0¡2 ;- 24 a = 0"},
        {kSpeedsTFactor, "v!1 = 8, v!3 = 12, t!3 = 2 t!1", "v!0 ;- a = 4"},
        {kSpeedsXFactor, "v!1 = 6, v!3 = 10, x!3 = 3 x!1", " ;- 2 v!0¡2 + 12 a = ;-8"},
    };
    for (const FoundCase& each : cases) {
        SCOPED_TRACE(each.data.name);
        EXPECT_EQ(Shown(Click(each.data, Unknown::Both)),
                  (Lines{"Sust. en ecs. con parámetros v y a del móvil 1, tramo 1",
                         std::string("Datos: ") + each.data_line, each.found}));
    }
}

TEST(BothUnknown, OffersAnAccelerationThatTheDataDetermine) {
    const std::vector<DataCase> cases = {
        {"Dt, Dv", kBase, {}, {"t1+3", "", "v1+6"}},
        {"ti, tf, Dv", kBase, {"1", "", ""}, {"4", "", "v1+6"}},
        {"ti, tf, C[x] with tf = C ti", kBase, {"1", "", ""}, {"3", "3*x1", ""}},
    };
    for (const DataCase& each : cases) {
        SCOPED_TRACE(each.name);
        const Step step = Click(each, Unknown::Both);
        EXPECT_EQ(Shown(step).back(),
                  "offer: Estos datos determinan la aceleración como 2\n"
                  "Oprime el botón \"Aceptar\" si deseas replantear las ecuaciones con este valor.");
        const Question* question = QuestionOf(step);
        ASSERT_TRUE(question);
        EXPECT_FALSE(question->no);
        const Problem after = After(Continue(After(step), *question->yes, kDecimals));
        EXPECT_EQ(after.EquationsOf(1, 1).kind, EquationKind::SpeedUnknown);
        EXPECT_EQ(after.EquationsOf(1, 1).a, 2.0);
        EXPECT_EQ(after.accelerations[0].shown, "2");
    }
    // Uniform: equal speeds at two moments.
    const Step step = Click({"C[v] = 1", kBase, {"1", "", ""}, {"4", "", "1*v1"}}, Unknown::Both);
    EXPECT_EQ(Shown(step)[2], "a = 0");
}

TEST(BothUnknown, FindsBothFromAWholePoint) {
    const Step step = Click({"t, x, v", kBase, {}, {"2", "15", "8"}}, Unknown::Both);
    EXPECT_EQ(Shown(step), (Lines{"Sust. en ecs. con parámetros v y a del móvil 1, tramo 1",
                                  "Datos: t!3 = 2, x!3 = 15, v!3 = 8", "Se halló: v!0 = 4, a = 2",
                                  "ask: ¿Deseas actualizar la ecuación de movimiento\n"
                                  "con este valor encontrado de la velocidad?"}));
    const Problem after = After(Continue(After(step), *QuestionOf(step)->yes, kDecimals));
    EXPECT_EQ(after.EquationsOf(1, 1).Expanded(), (Motion{3, 4, 2}));
}

TEST(BothUnknown, SaysWhatTheDataLeaveOpen) {
    // xf = C^2 xi from the base at the origin: (C^2 - 1) v^2 = 0.
    const Column origin = {"0", "0", ""};
    EXPECT_EQ(
        Shown(Click({"v alone", origin, {"", "2", ""}, {"", "8", "2*v1"}}, Unknown::Both)),
        (Lines{"Sust. en ecs. con parámetros v y a del móvil 1, tramo 1",
               "Datos: x!1 = 2, x!3 = 8, v!3 = 2 v!1", "3 v!0¡2 = 0", "La aceleración a es arbitraria."}));
    EXPECT_EQ(Shown(Click({"nothing", origin, {"", "2", ""}, {"", "2", "-v1"}}, Unknown::Both)),
              (Lines{"Sust. en ecs. con parámetros v y a del móvil 1, tramo 1",
                     "Datos: x!1 = 2, x!3 = 2, v!3 = ;-v!1", "La velocidad v es arbitraria.",
                     "La aceleración a es arbitraria."}));
}

TEST(FoundParameter, IsPlantedWhenAccepted) {
    const Step speed = Click(kTimePosition, Unknown::Speed);
    const Question* one = QuestionOf(speed);
    ASSERT_TRUE(one);
    EXPECT_EQ(one->text,
              "¿Deseas actualizar la ecuación de movimiento\ncon este valor encontrado de la velocidad?");
    EXPECT_EQ(one->buttons, Buttons::YesNo);
    EXPECT_FALSE(one->no);
    const Step planted = Continue(After(speed), *one->yes, kDecimals);
    EXPECT_EQ(After(planted).EquationsOf(1, 1).Expanded(), (Motion{3, 4, 2}));
    EXPECT_EQ(
        Shown(planted),
        (Lines{"clear 1", "clear 2", "show board", "board 1: x = t¡2 + 4 t + 3", "board 2: v = 2 t + 4",
               "Plantear ecs. del móvil 1, tramo 1, punto base: 0", "t!0 = 0, x!0 = 3, v!0 = 4, a = 2"}));
    EXPECT_EQ(After(planted).table, After(speed).table) << "the table gets nothing";
}

TEST(FoundParameter, LeavesTheChoiceOfTwo) {
    const Step speed = Click(kPositionSpeed, Unknown::Speed);
    const Question* two = QuestionOf(speed);
    ASSERT_TRUE(two && two->yes && two->no);
    EXPECT_EQ(two->text,
              "Si deseas actualizar la ecuación de movimiento\n"
              "con el primero de los 2 valores encontrados para la velocidad\n"
              "oprime el botón \"Sí\". Si con el segundo valor oprime el botón \"No\".");
    EXPECT_EQ(After(Continue(After(speed), *two->yes, kDecimals)).EquationsOf(1, 1).v, 4.0);
    EXPECT_EQ(After(Continue(After(speed), *two->no, kDecimals)).EquationsOf(1, 1).v, -4.0);

    const Step acceleration = Click(kPositionsDt, Unknown::Acceleration);
    const Question* of_two = QuestionOf(acceleration);
    ASSERT_TRUE(of_two && of_two->yes && of_two->no);
    EXPECT_EQ(of_two->text,
              "¿Deseas actualizar la ecuación de movimiento\n"
              "con alguno de estos 2 valores encontrados para la aceleración?\n"
              "Si escoges el primero oprime el botón \"Sí\". Para el segundo\n"
              "oprime el botón \"No\".");
    const Problem second = After(Continue(After(acceleration), *of_two->no, kDecimals));
    EXPECT_EQ(second.EquationsOf(1, 1).a, 2.0);
    EXPECT_EQ(second.accelerations[0].shown, "2");
}

// With t3 = C t1 the speed drops out of x3 = C x1: x0 (C - 1) = a C (C - 1) t1^2 / 2.
TEST(UnknownSpeed, MayBeArbitrary) {
    const Lines arbitrary =
        Shown(Click({"holds", {"0", "3", ""}, {"1", "", ""}, {"3", "3*x1", ""}}, Unknown::Speed));
    EXPECT_EQ(arbitrary.back(), "v!0 es arbitraria.");  // 3 = 0.5*2*3*1
    const Lines elsewhere =
        Shown(Click({"holds elsewhere", {"0", "12", ""}, {"1", "", ""}, {"3", "3*x1", ""}}, Unknown::Speed));
    EXPECT_EQ(elsewhere,
              (Lines{"Sust. en ecs. con parámetro v!0 del móvil 1, tramo 1",
                     "Datos: t!1 = 1, t!3 = 3, x!3 = 3 x!1", "Existe solución si se cumple que",
                     "x!0 = 0.5 a C (t!1;-t!0)¡2", "es decir, dados el factor C y la aceleración a, si",
                     "t!1 = 2  o bien  t!1 = ;-2", "en cuyo caso v!0 es arbitraria."}));
}

/// Uniform from x = 3: the second place is three times as far from there as the first one, at three times the
/// time, with any speed; another place never is. Accelerated motions are never so, but for the start itself.
TEST(UnknownSpeed, OfPlacesAtMultiplesOfATime) {
    const auto last_line = [](std::string_view acceleration, const char* first, const char* second) {
        Problem problem = PlantedOnOrigin({"0", "3", ""}, acceleration);
        Fill(problem, 1, 1, {"", first, ""});
        Fill(problem, 1, 3, {"3*t1", second, ""});
        return Shown(ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 3}, kDecimals)).back();
    };
    EXPECT_EQ(last_line("0", "8", "18"), "v!0 es arbitraria.");
    EXPECT_EQ(last_line("0", "8", "19"), "refused: No hay solución para v0");
    EXPECT_EQ(last_line("2", "8", "18"), "refused: No hay solución para v0");
    EXPECT_EQ(last_line("2", "3", "3"), "v!0 es arbitraria.");
}

TEST(UnknownSpeed, OfAUniformMotionBetweenTwoPlaces) {
    Problem problem = PlantedOnOrigin({"0", "3", ""}, "0");
    Fill(problem, 1, 1, {"", "8", ""});
    Fill(problem, 1, 3, {"t1+2", "24", ""});
    EXPECT_EQ(Shown(ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 3}, kDecimals))[2],
              "Se halló: v!0 = 8");  // 16 in 2
}

/// x3 = 2 x1 from the origin: v3^2 - v0^2 = 2 (v1^2 - v0^2), so v0^2 = 2 v1^2 - v3^2.
TEST(BothUnknown, NoSpeedHasANegativeSquare) {
    const Column origin = {"0", "0", ""};
    EXPECT_EQ(Shown(Click({"2 * 1 - 9", origin, {"", "", "1"}, {"", "2*x1", "3"}}, Unknown::Both)),
              Lines{"refused: No existe solución."});
    EXPECT_EQ(Shown(Click({"2 * 25 - 49", origin, {"", "", "5"}, {"", "2*x1", "7"}}, Unknown::Both))[2],
              " ;- v!0¡2 = ;-1");
}
}  // namespace
}  // namespace tavrelo::mechanics::motion
