#include "drawing/words.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "drawing/curve_words.h"

namespace tavrelo::drawing {
namespace {

using Values = std::vector<double>;

TEST(Words, CountInSpanish) {
    constexpr Noun kForce{"fuerza", "fuerzas", true};
    constexpr Noun kPoint{"punto", "puntos"};
    EXPECT_EQ(Counted(0, kForce), "ninguna fuerza");
    EXPECT_EQ(Counted(0, kPoint), "ningún punto");
    EXPECT_EQ(Counted(1, kForce), "una fuerza");
    EXPECT_EQ(Counted(1, kPoint), "un punto");
    EXPECT_EQ(Counted(10, kPoint), "diez puntos");
    EXPECT_EQ(Counted(12, kForce), "12 fuerzas");
}

TEST(Words, JoinLists) {
    const std::vector<std::string> items = {"A", "B", "C"};
    EXPECT_EQ(Listed({}), "");
    EXPECT_EQ(Listed(std::span(items).first(1)), "A");
    EXPECT_EQ(Listed(std::span(items).first(2)), "A y B");
    EXPECT_EQ(Listed(items), "A, B y C");
    EXPECT_EQ(ListedAtLength(items), "A; B; C");
    EXPECT_EQ(AsSentence("ángulo"), "Ángulo");
    EXPECT_EQ(AsSentence(""), "");
}

TEST(Words, TellNumbersAndDirections) {
    EXPECT_EQ(NumberWords(-2.5, 3), "menos 2.5");
    EXPECT_EQ(NumberWords(-0.0001, 3), "0");
    EXPECT_EQ(NumberWords(-2e20, 3), "menos 2 por 10 elevado a 20");
    EXPECT_EQ(NumberWords(std::numeric_limits<double>::infinity(), 3), "fuera de alcance");
    EXPECT_EQ(DegreesWords(1, 3), "1 grado");
    EXPECT_EQ(DegreesWords(-45, 3), "menos 45 grados");
    EXPECT_EQ(DirectionWords(0, 3), "hacia la derecha");
    EXPECT_EQ(DirectionWords(90, 3), "hacia arriba");
    EXPECT_EQ(DirectionWords(180, 3), "hacia la izquierda");
    EXPECT_EQ(DirectionWords(-180, 3), "hacia la izquierda");
    EXPECT_EQ(DirectionWords(-90, 3), "hacia abajo");
    EXPECT_EQ(DirectionWords(-135.25, 3), "a menos 135.25 grados");
    EXPECT_EQ(PlaceWords(4, -3, 3), "x 4, y menos 3");
    EXPECT_EQ(LabelWords("F!1"), "F1");
}

/// x^2 - 4 in steps of 0.25: zeros at -2 and 2, least -4 at 0.
TEST(CurveWords, TellExtentExtremesZerosAndStretches) {
    Values xs, ys;
    for (int k = -12; k <= 12; ++k) {
        xs.push_back(k / 4.0);
        ys.push_back(xs.back() * xs.back() - 4);
    }
    EXPECT_EQ(CurveWords({"x", "y", xs, ys}, 3),
              "y frente a x, de x menos 3 a x 3. Mínimo menos 4 en x 0; máximo 5 en x menos 3. Cero en x "
              "menos 2 y x 2. "
              "Baja de x menos 3 a x 0 y sube de x 0 a x 3.");
}

/// The same in steps that miss the summit: two equal samples beside it are no level stretch.
TEST(CurveWords, TellNoLevelStretchBetweenTwoSamplesOfASummit) {
    const Values xs = {-1.5, -0.5, 0.5, 1.5};
    const Values ys = {2.25, 0.25, 0.25, 2.25};
    const auto stretches = StretchesOf(xs, ys);
    ASSERT_EQ(stretches.size(), 2u);
    EXPECT_EQ(stretches[0].sense, -1);
    EXPECT_EQ(stretches[1].sense, 1);
}

TEST(CurveWords, TellAConstantAndALevelStretch) {
    const Values xs = {0, 1, 2, 3, 4};
    EXPECT_EQ(CurveWords({"t", "v", xs, Values{2, 2, 2, 2, 2}}, 3),
              "v frente a t, de t 0 a t 4. v constante: 2.");
    EXPECT_EQ(CurveWords({"t", "v", xs, Values{1, 2, 2, 2, 3}}, 3),
              "v frente a t, de t 0 a t 4. Mínimo 1 en t 0; máximo 3 en t 4. Sin ceros. Sube de t 0 a t 1, "
              "constante "
              "de t 1 a t 3 y sube de t 3 a t 4.");
    EXPECT_EQ(CurveWords({"t", "v", {}, {}}, 3), "");
}

/// 1/x at -2, -1, 1, 2 jumps over zero at its pole; a straight line through the same signs crosses it.
TEST(Zeros, LieWhereTheCurveCrossesAndNotAtAPole) {
    EXPECT_TRUE(ZerosOf(Values{-2, -1, 1, 2}, Values{-0.5, -1, 1, 0.5}).empty());
    EXPECT_EQ(ZerosOf(Values{-2, -1, 2, 3}, Values{-2, -1, 2, 3}), Values{0});
    EXPECT_EQ(ZerosOf(Values{0, 1, 2, 3}, Values{1, 0, 0, 1}), Values{1});
    // -2 sin(2 t) at pi, as arithmetic leaves it.
    EXPECT_EQ(ZerosOf(Values{0, 1, 2}, Values{-3, -2, 4.9e-16}), Values{2});
}

TEST(PathWords, TellBothEndsAndTheExtent) {
    EXPECT_EQ(PathWords({"x", "y", Values{1, 0, -1}, Values{0, 1, 0}}, 3),
              "empieza en x 1, y 0 y termina en x menos 1, y 0. Abarca x de menos 1 a 1, y de 0 a 1.");
}

/// A saw of nine teeth between -1 and 1, a sample each: nine stretches, five of them upward, and a zero
/// halfway up or down each. Too many to tell one by one.
TEST(CurveWords, CountsLongListsOfZerosAndStretches) {
    Values xs, ys;
    for (int k = 0; k <= 9; ++k) {
        xs.push_back(k);
        ys.push_back(k % 2 == 0 ? -1 : 1);
    }
    EXPECT_EQ(ZerosOf(xs, ys), (Values{0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5}));
    EXPECT_EQ(
        CurveWords({"t", "v", xs, ys}, 3),
        "v frente a t, de t 0 a t 9. Mínimo menos 1 en t 0; máximo 1 en t 1. 9 ceros, de t 0.5 a t 8.5. "
        "Sube en 5 tramos y baja en 4.");
}

TEST(CurveWords, AnEmptyCurveHasNoStretch) {
    EXPECT_TRUE(StretchesOf({}, {}).empty());
    EXPECT_EQ(PathWords({"x", "y", {}, {}}, 3), "");
}
}  // namespace
}  // namespace tavrelo::drawing
