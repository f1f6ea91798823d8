// The link of two stretches as the user goes through it: report, questions, table, boxes and equations.

#include "mechanics/motion/link_stretches.h"

#include <gtest/gtest.h>

#include "../../failure_code.h"
#include "mechanics/motion/procedures.h"
#include "mechanics/motion/two_points.h"
#include "planted_problems.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;
using numeric::FailureCode;
using points::PointPlace;
using tavrelo::testing::FailureOf;

constexpr PointPlace kA = {1, 1, 0};
constexpr int kJunction = 2;
constexpr PointPlace kC = {1, 2, 4};

void SetPoint(Problem& problem, int point, const text::Value& t, const text::Value& x, const text::Value& v) {
    SetCell(problem, 1, point, points::kTimeRow, t);
    SetCell(problem, 1, point, points::kPositionRow, x);
    SetCell(problem, 1, point, points::kSpeedRow, v);
}

// Stretches 0 to 2 and 2 to 8. From rest with 2 for 5 (x = 25, v = 10), then braked with -1 for 4 to 57
// and 6.
Problem Metro() {
    Problem problem = OneMover({kJunction});
    SetPoint(problem, 0, "0", "0", "0");
    SetPoint(problem, 4, "9", "57", {});
    problem.accelerations[SlotOf(1, 1)] = TypedAcceleration("2");
    problem.accelerations[SlotOf(1, 2)] = TypedAcceleration("-1");
    return problem;
}

const Outcome& OutcomeOf(const Step& step) { return std::get<Outcome>(step); }

std::string Shown(const Problem& problem, int point, int row) {
    return problem.table.At(row, points::ColumnOfPoint(problem.configuration, 1, point)).shown;
}

TEST(LinkStretches, OneSolutionGoesToTheTableAndThePlantingIsOffered) {
    const Problem problem = Metro();
    const Step step = LinkStretches(problem, kA, kC, kDecimals);
    const Outcome& outcome = OutcomeOf(step);
    EXPECT_EQ(LinesOf(step), (Lines{"Datos: t!0 = 0, x!0 = 0, v!0 = 0",
                                    "Solución:", "v'!4 = 6, t!2 = 5, x!2 = 25, v!2 = 10"}));
    EXPECT_EQ(Shown(outcome.problem, kJunction, points::kTimeRow), "5");
    EXPECT_EQ(Shown(outcome.problem, kJunction, points::kPositionRow), "25");
    EXPECT_EQ(Shown(outcome.problem, kJunction, points::kSpeedRow), "10");
    EXPECT_EQ(Shown(outcome.problem, kC.point, points::kSpeedRow), "6");
    EXPECT_EQ(outcome.problem.equations, problem.equations);
    ASSERT_EQ(outcome.events.size(), 2U);
    const auto& question = std::get<Question>(outcome.events[1]);
    EXPECT_EQ(question.buttons, Buttons::YesNo);
    EXPECT_EQ(question.text,
              "¿Deseas plantear las ecuaciones de movimiento de los\n"
              "dos tramos considerados del móvil 1 con los valores calculados?");
    EXPECT_FALSE(question.no.has_value());

    ASSERT_TRUE(question.yes.has_value());
    const Step planted = Continue(outcome.problem, *question.yes, kDecimals);
    const Problem& after = OutcomeOf(planted).problem;
    EXPECT_EQ(after.EquationsOf(1, 1).Expanded(), (Motion{0, 0, 2}));
    // On c: x = 57 + 6 (t - 9) - (t - 9)^2/2.
    EXPECT_EQ(after.EquationsOf(1, 2).base, kC.point);
    EXPECT_EQ(after.EquationsOf(1, 2).Expanded(), (Motion{-37.5, 15, -1}));
    EXPECT_EQ(LinesOf(planted),
              (Lines{"Plantear ecs. del móvil 1, tramo 1, punto base: 0", "t!0 = 0, x!0 = 0, v!0 = 0, a = 2",
                     "Plantear ecs. del móvil 1, tramo 2, punto base: 4",
                     "t!4 = 9, x'!4 = 57, v'!4 = 6, a' = -1"}));
}

TEST(LinkStretches, AMissingAccelerationGoesToItsBox) {
    Problem problem = Metro();
    SetPoint(problem, 4, "9", "57", "6");
    problem.accelerations[SlotOf(1, 2)] = {};
    const Step step = LinkStretches(problem, kA, kC, kDecimals);
    EXPECT_EQ(LinesOf(step).back(), "a' = -1, t!2 = 5, x!2 = 25, v!2 = 10");
    EXPECT_EQ(OutcomeOf(step).problem.AccelerationOf(1, 2), (points::Cell{-1, "-1"}));
}

// Up at 10 under -10, then -5: 3.75 is passed twice (5 at 0.5, -5 at 1.5).
TEST(LinkStretches, OfTwoSolutionsTheUserChoosesFirst) {
    Problem problem = OneMover({kJunction});
    SetPoint(problem, 0, "0", "0", "10");
    SetPoint(problem, 4, {}, "3.75", "-5");
    problem.accelerations[SlotOf(1, 1)] = TypedAcceleration("-10");
    problem.accelerations[SlotOf(1, 2)] = TypedAcceleration("-5");
    const Step step = LinkStretches(problem, kA, kC, kDecimals);
    const Outcome& outcome = OutcomeOf(step);
    EXPECT_EQ(LinesOf(step), (Lines{"Datos: t!0 = 0, x!0 = 0, v!0 = 10",
                                    "Solución 1:", "t!4 = 2.5, t!2 = 0.5, x!2 = 3.75, v!2 = 5",
                                    "Solución 2:", "t!4 = 1.5, t!2 = 1.5, x!2 = 3.75, v!2 = -5"}));
    EXPECT_EQ(outcome.problem, problem);
    const auto& question = std::get<Question>(outcome.events.back());
    EXPECT_EQ(question.text,
              "Para escoger la primera solución desplegada en la pestaña \"Resultados\"\n"
              "oprime el botón \"Sí\". Para la segunda oprime \"No\".");
    for (const auto& [request, time] : {std::pair{question.yes, "0.5"}, std::pair{question.no, "1.5"}}) {
        const Step taken = Continue(outcome.problem, request.value(), kDecimals);
        EXPECT_EQ(Shown(OutcomeOf(taken).problem, kJunction, points::kTimeRow), time);
        ASSERT_EQ(OutcomeOf(taken).events.size(), 1U);
        EXPECT_TRUE(std::holds_alternative<Question>(OutcomeOf(taken).events.front()));
    }
}

TEST(LinkStretches, RefusesByNameAndFails) {
    const auto refused = [](const Problem& problem, const PointPlace& first, const PointPlace& second) {
        return LinesOf(LinkStretches(problem, first, second, kDecimals)).front();
    };
    const Problem two = TwoMovers(6, {2});
    EXPECT_EQ(refused(two, kA, {2, 1, 0}), "refused: Estás abarcando dos móviles.");
    EXPECT_EQ(refused(two, {2, 1, 0}, {2, 1, 1}),
              "refused: Esta subrutina es aplicable a dos tramos contiguos del móvil 1.");
    const Problem three = OneMover({2, 4});
    const char* const not_consecutive = "refused: Los tramos a ligar deben ser consecutivos.";
    EXPECT_EQ(refused(three, {1, 1, 0}, {1, 1, 1}), not_consecutive);
    EXPECT_EQ(refused(three, {1, 1, 0}, {1, 3, 5}), not_consecutive);
    EXPECT_EQ(refused(three, {1, 2, 3}, {1, 1, 0}), not_consecutive);
    Problem problem = Metro();
    problem.accelerations[SlotOf(1, 2)] = TypedAcceleration("2");
    EXPECT_EQ(refused(problem, kA, kC), "refused: Las aceleraciones no pueden ser iguales.");
    problem = Metro();
    SetPoint(problem, 4, "9", "100", {});
    EXPECT_EQ(refused(problem, kA, kC), "refused: No hay solución.");
    const auto fails = [&](const Problem& with) {
        return FailureOf([&] { (void)LinkStretches(with, kA, kC, kDecimals); });
    };
    SetPoint(problem, 4, "9", {}, {});
    EXPECT_EQ(fails(problem), FailureCode::TypeMismatch);
    SetPoint(problem, 4, "9", "57", "6");
    EXPECT_EQ(fails(problem), FailureCode::TypeMismatch) << "nothing is missing";
    problem = Metro();
    SetPoint(problem, 0, "0", "0", {});
    EXPECT_EQ(fails(problem), FailureCode::TypeMismatch);
}

TEST(TwoPoints, TheSecondClickEndsThePair) {
    PendingPoint pending;
    EXPECT_FALSE(pending.IsWaiting());
    EXPECT_EQ(pending.Click(kA), std::nullopt);
    EXPECT_TRUE(pending.IsWaiting());
    EXPECT_EQ(pending.Click(kC), (PointPair{kA, kC}));
    EXPECT_FALSE(pending.IsWaiting());
    EXPECT_EQ(pending.Click(kA), std::nullopt);
    pending.Forget();
    EXPECT_EQ(pending.Click(kC), std::nullopt);
    EXPECT_EQ(pending.Click(kC), (PointPair{kC, kC})) << "a point may be clicked twice";
}

TEST(TwoPoints, EachProcedureRunsOnItsPair) {
    EXPECT_TRUE(TakesTwoPoints(Procedure::Graph));
    EXPECT_TRUE(TakesTwoPoints(Procedure::Distance));
    EXPECT_TRUE(TakesTwoPoints(Procedure::Link));
    EXPECT_FALSE(TakesTwoPoints(Procedure::Plant));
    EXPECT_FALSE(TakesTwoPoints(Procedure::Interval));
    const Problem problem = Metro();
    EXPECT_EQ(LinesOf(RunOnPair(problem, Procedure::Link, {kA, kC}, kDecimals)).front(),
              "Datos: t!0 = 0, x!0 = 0, v!0 = 0");
    EXPECT_EQ(LinesOf(RunOnPair(problem, Procedure::Distance, {kA, {2, 1, 0}}, kDecimals)).front(),
              "refused: Estás abarcando 2 móviles.");
    EXPECT_TRUE(OutcomeOf(RunOnPair(problem, Procedure::Plant, {kA, kC}, kDecimals)).events.empty());
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
