// When two movers are in a given relation, and the motion that reaches a ratio of positions and speeds at
// once.

#include "mechanics/motion/two_movers.h"

#include <gtest/gtest.h>

#include "../../failure_code.h"
#include "planted_problems.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;
using numeric::FailureCode;
using tavrelo::testing::FailureOf;

constexpr Relation kRelations[] = {Relation::PositionDifference, Relation::PositionRatio,
                                   Relation::SpeedDifference, Relation::SpeedRatio};

Problem TwoPlanted(const Motion& first, const Motion& second) {
    Problem problem = TwoMovers(4);
    GiveMotion(problem, 1, 1, first);
    GiveMotion(problem, 2, 1, second);
    return problem;
}

TEST(Relations, ReportEveryTimeInTheStretch) {
    struct Row {
        Motion first, second;
        Relation relation;
        const char* constant;
        Lines lines;
    };
    const Row rows[] = {
        // 25 t = 100 + 20 t.
        {{0, 25, 0},
         {100, 20, 0},
         Relation::PositionDifference,
         "0",
         {"La condición x ;- X = 0 se cumple en el tramo 1 del móvil 1 en:", "t = 20, x = 500, X = 500"}},
        // A motorist at 22 passes a policeman who starts from rest with 2: t^2 = 22 t.
        {{0, 22, 0},
         {0, 0, 2},
         Relation::PositionDifference,
         " 0 ",
         {"La condición x ;- X = 0 se cumple en el tramo 1 del móvil 1 en:", "t = 22, x = 484, X = 484",
          "t = 0, x = 0, X = 0"}},
        // 2 t behind by 5: t - 3 t = -5.
        {{0, 1, 0},
         {0, 3, 0},
         Relation::PositionDifference,
         "-5",
         {"La condición x ;- X = -5 se cumple en el tramo 1 del móvil 1 en:", "t = 2.5, x = 2.5, X = 7.5"}},
        // 10 + t = 2 (1 + t).
        {{10, 1, 0},
         {1, 1, 0},
         Relation::PositionRatio,
         "2",
         {"La condición x = 2X se cumple en el tramo 1 del móvil 1 en:", "t = 8, x = 18, X = 9"}},
        // 3 + 2 t - (10 - t) = 2.
        {{0, 3, 2},
         {0, 10, -1},
         Relation::SpeedDifference,
         "2",
         {"La condición v ;- V = 2 se cumple en el tramo 1 del móvil 1 en:", "t = 3, v = 9, V = 7"}},
        // 3 + 2 t = 3 (10 - t).
        {{0, 3, 2},
         {0, 10, -1},
         Relation::SpeedRatio,
         "3",
         {"La condición v = 3V se cumple en el tramo 1 del móvil 1 en:", "t = 5.4, v = 13.8, V = 4.6"}},
        // 0.3 t^2 and a tenth of 3 t^2 differ by rounding alone: 5 t = 10.
        {{0, 5, 0.6},
         {100, 0, 6},
         Relation::PositionRatio,
         "0.1",
         {"La condición x = 0.1X se cumple en el tramo 1 del móvil 1 en:", "t = 2, x = 11.2, X = 112"}},
        // Just caught: t^2 + 0.01 = 0.2 t touches once.
        {{0, 0.2, 0},
         {0.01, 0, 2},
         Relation::PositionDifference,
         "0",
         {"La condición x ;- X = 0 se cumple en el tramo 1 del móvil 1 en:", "t = 0.1, x = 0.02, X = 0.02"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(
            LinesOf(ApplyRelation(TwoPlanted(row.first, row.second), row.relation, row.constant, kDecimals)),
            row.lines)
            << row.lines.front();
}

TEST(Relations, CountOnlyTimesOfTheStretch) {
    Problem problem = TwoPlanted({0, 25, 0}, {100, 20, 0});  // meet at 20
    const auto meets = [&] {
        return LinesOf(ApplyRelation(problem, Relation::PositionDifference, "0", kDecimals)).size() == 2;
    };
    EXPECT_TRUE(meets());
    SetTime(problem, 1, 0, 0);
    EXPECT_TRUE(meets()) << "one limit is none";
    SetTime(problem, 1, 3, 19);
    EXPECT_FALSE(meets());
    SetTime(problem, 1, 3, 20);
    EXPECT_TRUE(meets()) << "the ends belong to the stretch";
    SetTime(problem, 1, 0, 20);
    SetTime(problem, 1, 3, 25);
    EXPECT_TRUE(meets());
    SetTime(problem, 1, 0, 21);
    EXPECT_FALSE(meets());
    SetCell(problem, 1, 0, points::kTimeRow, "t3-2");
    EXPECT_TRUE(meets()) << "a reference is no limit";
}

// 0.06/(0.3 - 0.1) is a little more than 0.3, and yet it is the typed end of the stretch.
TEST(Relations, RoundingDoesNotPushATimeOutOfItsStretch) {
    Problem problem = TwoPlanted({0, 0.3, 0}, {0.06, 0.1, 0});
    const auto meets = [&] {
        return LinesOf(ApplyRelation(problem, Relation::PositionDifference, "0", kDecimals)).size() == 2;
    };
    SetTime(problem, 1, 0, 0);
    SetTime(problem, 1, 3, 0.3);
    EXPECT_TRUE(meets());
    SetTime(problem, 1, 3, 0.2999);
    EXPECT_FALSE(meets());
    SetTime(problem, 1, 0, 0.3);
    SetTime(problem, 1, 3, 0.1);
    EXPECT_TRUE(meets()) << "the limits in either order";
}

TEST(Relations, GoThroughTheStretchesThatHaveEquations) {
    Problem problem = TwoMovers(6, {2});
    GiveMotion(problem, 1, 1, {0, 10, 0});
    GiveMotion(problem, 1, 2, {-40, 20, 0});  // the same place at t = 4
    GiveMotion(problem, 2, 1, {30, 5, 0});    // meets the first at 6, the second at 14/3
    EXPECT_EQ(
        LinesOf(ApplyRelation(problem, Relation::PositionDifference, "0", kDecimals)),
        (Lines{"La condición x ;- X = 0 se cumple en el tramo 1 del móvil 1 en:", "t = 6, x = 60, X = 60",
               "La condición x ;- X = 0 se cumple en el tramo 2 del móvil 1 en:",
               "t = 4.667, x = 53.333, X = 53.333"}));
    SetTime(problem, 1, 0, 0);
    SetTime(problem, 1, 2, 4);
    SetTime(problem, 1, 5, 10);
    EXPECT_EQ(LinesOf(ApplyRelation(problem, Relation::PositionDifference, "0", kDecimals)),
              (Lines{"La condición x ;- X = 0 se cumple en el tramo 2 del móvil 1 en:",
                     "t = 4.667, x = 53.333, X = 53.333"}));
    problem.equations[SlotOf(1, 2)].kind = EquationKind::SpeedUnknown;
    EXPECT_EQ(LinesOf(ApplyRelation(problem, Relation::PositionDifference, "0", kDecimals)),
              Lines{"refused: " + std::string(kNoSuchPoints)});
}

TEST(Relations, RefuseByNameInOrder) {
    const auto refused = [](const Problem& problem, Relation relation, const char* typed) {
        return LinesOf(ApplyRelation(problem, relation, typed, kDecimals)).front();
    };
    const auto is = [](std::string_view text) { return "refused: " + std::string(text); };
    EXPECT_EQ(refused({}, Relation::PositionDifference, "x"), is(kForTwoMovers));
    EXPECT_EQ(refused(OneMover(), Relation::SpeedRatio, "x"), is(kForTwoMovers));
    Problem problem = TwoMovers(4);
    for (const char* typed : {"", "x", "1, 2", "1 2", "-"})
        EXPECT_EQ(refused(problem, Relation::PositionRatio, typed), is(kCheckTheData)) << typed;
    EXPECT_EQ(refused(problem, Relation::PositionRatio, "1"), is(kSecondNotPlanted));
    GiveMotion(problem, 2, 1, {0, 3, 2});
    EXPECT_EQ(refused(problem, Relation::PositionRatio, "1"), is(kFirstNotPlanted));
    GiveMotion(problem, 1, 1, {9, 3, 2});
    // Equal accelerations and speeds: the distance never changes.
    EXPECT_EQ(refused(problem, Relation::PositionDifference, "0"), is(kNoRelationSolution));
    EXPECT_EQ(refused(problem, Relation::SpeedDifference, "3"), is(kNoRelationSolution));
    EXPECT_EQ(refused(problem, Relation::SpeedRatio, "1"), is(kNoRelationSolution));
    // 3 t^2 + 9 t + 9 has no real root.
    EXPECT_EQ(refused(problem, Relation::PositionRatio, "-2"), is(kNoSuchPoints));
    EXPECT_EQ(
        FailureOf([&] {
            (void)refused(TwoPlanted({1e200, 1e200, 0}, {0, 0, 1e200}), Relation::PositionDifference, "0");
        }),
        FailureCode::Overflow);
}

// ---- Ratios of position and speed at once.

// Mover 2 with one datum left empty: t, x, v of its point 0 and its acceleration.
Problem WithSecond(const Motion& first, const text::Value& t0, const text::Value& x0, const text::Value& v0,
                   const text::Value& a) {
    Problem problem = TwoMovers(4);
    GiveMotion(problem, 1, 1, first);
    SetCell(problem, 2, 0, points::kTimeRow, t0);
    SetCell(problem, 2, 0, points::kPositionRow, x0);
    SetCell(problem, 2, 0, points::kSpeedRow, v0);
    problem.accelerations[SlotOf(2, 1)] = {a, a.Text()};
    return problem;
}

TEST(Ratios, ReportTheMissingDatumAndThePoint) {
    struct Row {
        Problem problem;
        const char* typed;
        Lines lines;
    };
    const text::Value none;
    const Row rows[] = {
        // x = t^2, mover 2 at rest at first, A missing: t^2 = 2 A t^2 and 2 t = 2 A t have no common A; from
        // X0 = 6:
        // with x = 2 X and v = 2 V, V = t, A = 1, and t^2 = 12 + t^2 never. From V0 = 1, T0 = 0, X0 = 0, p =
        // q = 1:
        // t^2 = t (1 + 2 t)/2 = t/2 + t^2 only at the base.
        {WithSecond({0, 0, 2}, 0, 0, 1, none), "1, 1", {"refused: No existe solución para A."}},
        // x = t^2 and X = 6 + A t^2/2: x = 4 X and v = 2 V. V = A t = t, A = 1; t^2 = 24 + 2 t^2 never; x = X
        // and
        // v = 2 V: t^2 = 6 + t^2/2, t = sqrt 12 or its opposite.
        {WithSecond({0, 0, 2}, 0, 6, 0, none),
         "1, 2",
         {"Las condiciones x = 1*X  y  v = 2*V se cumplen si",
          "A = 1, en el punto:", "t = 3.464, x = 12, v = 6.928", "X = 12, V = 3.464 o si A = 1, en el punto:",
          "t = -3.464, x = 12, v = -6.928", "X = 12, V = -3.464"}},
        // Uniform mover 2 from 5: x = t^2 meets it with equal speeds where V0 = 2 t and t^2 = 5 + 2 t^2:
        // never; from -4 at
        // t = 2 with 4 and at t = -2 with -4.
        {WithSecond({0, 0, 2}, 0, -4, none, 0),
         "1, 1",
         {"Las condiciones x = 1*X  y  v = 1*V se cumplen si", "V!0 = 4, en el punto:", "t = 2, x = 4, v = 4",
          "X = 4, V = 4 o si V0 = -4, en el punto:", "t = -2, x = 4, v = -4", "X = 4, V = -4"}},
        {WithSecond({0, 0, 2}, 0, 5, none, 0), "1, 1", {"refused: No existe solución para V0."}},
        // Both uniform in the end: x = 10 t, X = V0 = 5 with A = 0 ... the time is free.
        {WithSecond({0, 10, 0}, none, 0, 5, 0), "1, 2", {"refused: Procedimiento no aplicable."}},
        // x = t^2 and mover 2 from rest at 0 with 4: v = V where x = X/2: (2 t)^2 = 8 X and t^2 = X/2:
        // always, and
        // the time is free: no solution is told. From X0 = 3: 4 t^2 = 8 (2 t^2 - 3), t = sqrt 2 and T = t/2.
        {WithSecond({0, 0, 2}, none, 3, 0, 4),
         "0.5, 1",
         {"Las condiciones x = 0.5*X  y  v = 1*V se cumplen en", "t = 1.414, x = 2, v = 2.828",
          "X = 4, V = 2.828  si T!0 = 0.707", "o bien en t = -1.414, x = 2, v = -2.828",
          "X = 4, V = -2.828  si T!0 = -0.707"}},
        // A uniform mover 2 at 6: 2 t = 6 at t = 3, x = 9 = 6 (t - T0).
        {WithSecond({0, 0, 2}, none, 0, 6, 0),
         "1, 1",
         {"Las condiciones x = 1*X  y  v = 1*V se cumplen en", "t = 3, x = 9, v = 6",
          "X = 9, V = 6  si T!0 = 1.5"}},
        // v = V at t = 3 where x = 9 = X0 + 18.
        {WithSecond({0, 0, 2}, 0, none, 6, 0),
         "1, 1",
         {"Las condiciones x = 1*X  y  v = 1*V se cumplen", "en t = 3, x = 9, v = 6",
          "X = 9, V = 6  si X!0 = -9"}},
        {WithSecond({0, 0, 2}, 0, none, 6, 2), "1, 1", {"refused: Procedimiento no aplicable."}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(LinesOf(ApplyRatios(row.problem, row.typed, kDecimals)), row.lines) << row.typed;
}

TEST(Ratios, RefuseByName) {
    const text::Value none;
    const auto refused = [](const Problem& problem, const char* typed) {
        return LinesOf(ApplyRatios(problem, typed, kDecimals)).front();
    };
    const auto is = [](std::string_view text) { return "refused: " + std::string(text); };
    const Problem good = WithSecond({0, 0, 2}, 0, -4, none, 0);
    for (const char* typed : {"", "1", "1, 2, 3", "p, q", "1, "})
        EXPECT_EQ(refused(good, typed), is(kBadRatios)) << typed;
    EXPECT_EQ(refused(good, "0, 1"), is(kDegenerateRatio));
    EXPECT_EQ(refused(good, "1, 0"), is(kDegenerateRatio));
    EXPECT_EQ(refused(OneMover(), "1, 1"), is(kNotApplicable));
    EXPECT_EQ(refused(TwoMovers(4), "1, 1"), is(kFirstStretchNotPlanted));
    EXPECT_EQ(refused(WithSecond({0, 0, 2}, 0, -4, 1, 0), "1, 1"), is(kNotApplicable));
    EXPECT_EQ(refused(WithSecond({0, 0, 2}, 0, none, none, 0), "1, 1"), is(kNotApplicable));
    EXPECT_EQ(FailureOf([&] {
                  (void)refused(WithSecond({0, 0, 2}, 0, "x1", none, 0), "1, 1");
              }),
              FailureCode::TypeMismatch);
    // Mover 2 rests: when it started cannot be told.
    EXPECT_EQ(FailureOf([&] {
                  (void)refused(WithSecond({0, 0, 2}, none, 0, 0, 0), "1, 1");
              }),
              FailureCode::DivisionByZero);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
