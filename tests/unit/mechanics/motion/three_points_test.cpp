#include <gtest/gtest.h>

#include "../../failure_code.h"
#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;
using tavrelo::testing::FailureOf;

// x = 3 + 4 t + t^2
Problem ThreePoints() {
    Problem problem = OneMover();
    Fill(problem, 1, 1, {"1", "8", ""});
    Fill(problem, 1, 4, {"3", "24", "7"});
    Fill(problem, 1, 2, {"-2", "-1", ""});
    return problem;
}

TEST(ThreePoints, FindTheMotionAndAskForItsBase) {
    const Problem problem = ThreePoints();
    const Step step = RunThreePoints(problem, "1, 1, 1,4 ,2", kDecimals);
    EXPECT_EQ(Shown(step), (Lines{"clear 9", "clear 10", "show board", "board 9: Punto base n a fijar:",
                                  "board 10: t!n = 0, x!n = 3, v!n = 4, a = 2",
                                  "ask: ¿Pasar los resultados a la tabla?"}));
    EXPECT_EQ(After(step), problem);
    const Step waiting = Continue(After(step), *QuestionOf(step)->yes, kDecimals);
    EXPECT_EQ(Shown(waiting), (Lines{"box: Para consignar los resultados en la tabla da el índice \"n\"\n"
                                     "del punto donde deseas que t = 0 y oprime el botón \"Aceptar\"."}));
    ASSERT_TRUE(After(waiting).awaited_base);
    const Step based = RunThreePoints(After(waiting), " 4 ", kDecimals);
    const Problem after = After(based);
    EXPECT_FALSE(after.awaited_base);
    EXPECT_EQ(ShownAt(after, points::kTimeRow, 5), "0");
    EXPECT_EQ(ShownAt(after, points::kPositionRow, 5), "3");
    EXPECT_EQ(ShownAt(after, points::kSpeedRow, 5), "4");
    EXPECT_EQ(ShownAt(after, points::kTimeRow, 2), "1") << "other columns stay";
    EXPECT_EQ(after.accelerations[0].shown, "2");
    EXPECT_EQ(after.EquationsOf(1, 1).Expanded(), (Motion{3, 4, 2}));
    EXPECT_EQ(Shown(based).back(), "t!4 = 0, x!4 = 3, v!4 = 4, a = 2");
}

TEST(ThreePoints, RefusePointsThatAreNotThreeOfAStretch) {
    Problem problem = Divided(3, {7, 3, 5});  // stretches 0-2, 2-4, 4-6; mover 2 has points 0 and 1
    for (int point = 0; point < 7; ++point)
        Fill(problem, 1, point, {std::to_string(point), "1", ""});
    for (const char* text : {"1, 1, 0, 1, 3", "1, 2, 2, 3, 3", "2, 1, 0, 1, 2", "1, 4, 0, 1, 2",
                             "3, 1, 0, 1, 2", "0, 1, 0, 1, 2", "1, 3, 4, 5, -1", "1, 2, 1, 3, 4"}) {
        EXPECT_EQ(RefusalOf(RunThreePoints(problem, text, kDecimals)),
                  "Los puntos no pertenecen al mismo móvil y tramo,\no se repiten.")
            << text;
    }
    EXPECT_EQ(RefusalOf(RunThreePoints(problem, "1, 2, 2, 3, 4", kDecimals)), "");
}

TEST(ThreePoints, FailOnWhatIsNoNumber) {
    const Problem problem = ThreePoints();
    for (const char* text : {"", "1, 1, 1, 4", "1, 1, 1, 4, 2, 3", "1, 1, 1, 4, x", "1, 1, 1.5, 4, 2",
                             "1,,1,4,2", "1, 1, 1, 4, 5"}) {
        EXPECT_EQ(FailureOf([&] { RunThreePoints(problem, text, kDecimals); }),
                  numeric::FailureCode::TypeMismatch)
            << text;
    }
}

TEST(ThreePoints, RefuseTwoPositionsAtOneMoment) {
    Problem problem = ThreePoints();
    Fill(problem, 1, 2, {"1", "9", ""});
    EXPECT_EQ(RefusalOf(RunThreePoints(problem, "1, 1, 1, 4, 2", kDecimals)),
              "El determinante del sistema es cero.");
}

TEST(ThreePoints, ForgetTheWaitWhenTheBaseIsWrong) {
    const Step step = RunThreePoints(ThreePoints(), "1, 1, 1, 4, 2", kDecimals);
    const Problem waiting = After(Continue(After(step), *QuestionOf(step)->yes, kDecimals));
    struct WrongBase {
        const char* text;
        const char* message;
    };
    for (const WrongBase& each :
         {WrongBase{"9", "box: Los puntos no pertenecen al mismo móvil y tramo,\no se repiten."},
          WrongBase{"-1", "box: Los puntos no pertenecen al mismo móvil y tramo,\no se repiten."},
          WrongBase{"n", "box: No pude ejecutar la instrucción."},
          WrongBase{"", "box: No pude ejecutar la instrucción."},
          WrongBase{"1.5", "box: No pude ejecutar la instrucción."}}) {
        const Step refused = RunThreePoints(waiting, each.text, kDecimals);
        EXPECT_EQ(Shown(refused), Lines{each.message});
        Problem expected = waiting;
        expected.awaited_base.reset();
        EXPECT_EQ(After(refused), expected);
    }
}

// Thousandths of a second apart: x = 2 + 3 t - 5 t^2.
TEST(ThreePoints, KeepTheDigitsOfShortTimes) {
    Problem problem = OneMover();
    Fill(problem, 1, 0, {"0.001", "2.002995", ""});
    Fill(problem, 1, 1, {"0.002", "2.00598", ""});
    Fill(problem, 1, 2, {"0.003", "2.008955", ""});
    EXPECT_EQ(Shown(RunThreePoints(problem, "1, 1, 0, 1, 2", kDecimals))[4],
              "board 10: t!n = 0, x!n = 2, v!n = 3, a = -10");
}

// From the origin at t = 0 with x = -4 t + 3.5 t^2: at 4.14 it is 43.4286, at 2 it is 6. That point comes
// last and must not be missed by what rounding leaves of 0.
TEST(ThreePoints, ReachTheOriginWhateverTheOrder) {
    Problem problem = OneMover();
    Fill(problem, 1, 0, {"0", "0", ""});
    Fill(problem, 1, 1, {"4.14", "43.4286", ""});
    Fill(problem, 1, 2, {"2", "6", ""});
    for (const char* chosen : {"1, 1, 1, 2, 0", "1, 1, 0, 1, 2", "1, 1, 2, 0, 1"}) {
        const Step step = RunThreePoints(problem, chosen, kDecimals);
        ASSERT_EQ(RefusalOf(step), "") << chosen;
        EXPECT_EQ(Shown(step)[4], "board 10: t!n = 0, x!n = 0, v!n = -4, a = 7");
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
