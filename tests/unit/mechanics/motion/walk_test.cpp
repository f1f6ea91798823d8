// The way walked between two points, and the graph of position against time.

#include <gtest/gtest.h>

#include <algorithm>

#include "../../failure_code.h"
#include "mechanics/motion/distance.h"
#include "mechanics/motion/graph.h"
#include "mechanics/motion/legs.h"
#include "planted_problems.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;
using Lines = std::vector<std::string>;
using numeric::FailureCode;
using points::PointPlace;
using tavrelo::testing::FailureOf;

constexpr double kTolerance = 1e-9;

Lines Distance(const Problem& problem, const PointPlace& first, const PointPlace& second) {
    return LinesOf(WalkedDistance(problem, first, second, kDecimals));
}

std::string DistanceLine(const Problem& problem, const PointPlace& first, const PointPlace& second) {
    return Distance(problem, first, second).back();
}

// x = (t - 5)^2 at t = 1, 2, 9, 10.
Problem TurningProblem() {
    Problem problem = OneMover();
    GiveMotion(problem, 1, 1, {25, -10, 2});
    int point = 0;
    for (const double t : {1.0, 2.0, 9.0, 10.0})
        SetTime(problem, 1, point++, t);
    return problem;
}

TEST(WalkedDistance, AddsTheWayBackAndForthAcrossTheTurningPoint) {
    const Problem problem = TurningProblem();
    EXPECT_EQ(Distance(problem, {1, 1, 1}, {1, 1, 2}),
              (Lines{"Calcular distancia recorrida.", "Móvil 1, de t = 2 a t = 9:", "d = 25"}));
    EXPECT_EQ(DistanceLine(problem, {1, 1, 2}, {1, 1, 3}), "d = 9");
    EXPECT_EQ(DistanceLine(problem, {1, 1, 0}, {1, 1, 1}), "d = 7");
    // Clicked the other way round it is the same way.
    EXPECT_EQ(Distance(problem, {1, 1, 2}, {1, 1, 1}), Distance(problem, {1, 1, 1}, {1, 1, 2}));
    EXPECT_EQ(DistanceLine(problem, {1, 1, 2}, {1, 1, 2}), "d = 0");
}

// 10 t up to t = 2, braked by 5 from then on: 20 + 10 before it turns at 4, and 10 back until 6.
Problem StretchedProblem() {
    Problem problem = OneMover({2});
    GiveMotion(problem, 1, 1, {0, 10, 0});
    GiveMotion(problem, 1, 2, {-10, 20, -5});
    SetTime(problem, 1, 0, 0);
    SetTime(problem, 1, 1, 1);
    SetTime(problem, 1, 2, 2);
    SetTime(problem, 1, 4, 6);
    return problem;
}

TEST(WalkedDistance, GoesOnFromStretchToStretch) {
    const Problem problem = StretchedProblem();
    EXPECT_EQ(DistanceLine(problem, {1, 1, 0}, {1, 2, 4}), "d = 40");
    EXPECT_EQ(DistanceLine(problem, {1, 1, 1}, {1, 2, 4}), "d = 30");
    EXPECT_EQ(DistanceLine(problem, {1, 2, 4}, {1, 1, 1}), "d = 30");
    EXPECT_EQ(DistanceLine(problem, {1, 1, 0}, {1, 1, 2}), "d = 20");
    EXPECT_EQ(DistanceLine(problem, {1, 1, 2}, {1, 2, 4}), "d = 20") << "no time in the first stretch";
}

TEST(WalkedDistance, RefusesAndFails) {
    Problem two = TwoMovers(4);
    EXPECT_EQ(DistanceLine(two, {1, 1, 0}, {2, 1, 0}), "refused: Estás abarcando 2 móviles.");
    Problem problem = StretchedProblem();
    problem.equations[SlotOf(1, 2)].kind = EquationKind::AccelerationUnknown;
    EXPECT_EQ(DistanceLine(problem, {1, 1, 0}, {1, 2, 4}),
              "refused: No tengo la ecuación x = x(t) del móvil 1, tramo 2");
    EXPECT_EQ(DistanceLine(problem, {1, 1, 0}, {1, 1, 2}), "d = 20");
    EXPECT_EQ(FailureOf([&] { (void)Distance(problem, {1, 1, 0}, {1, 2, 3}); }), FailureCode::TypeMismatch);
    SetCell(problem, 1, 2, points::kTimeRow, {});
    EXPECT_EQ(FailureOf([&] { (void)Distance(problem, {1, 1, 0}, {1, 2, 4}); }), FailureCode::TypeMismatch);
    SetTime(problem, 1, 2, 7);
    problem.equations[SlotOf(1, 2)].kind = EquationKind::Complete;
    EXPECT_EQ(FailureOf([&] { (void)Distance(problem, {1, 1, 0}, {1, 2, 4}); }), FailureCode::OutOfDomain);
}

// ---- Graph.

MotionGraph GraphOf(const Problem& problem, const PointPlace& first, const PointPlace& last) {
    return std::get<MotionGraph>(GraphBetween(problem, first, last));
}

TEST(Graph, ACurveForEachStretchAndTheTurningPointAmongThem) {
    const MotionGraph graph = GraphOf(StretchedProblem(), {1, 1, 0}, {1, 2, 4});
    EXPECT_EQ(graph.first_time, 0);
    EXPECT_EQ(graph.last_time, 6);
    EXPECT_EQ(graph.least_position, 0);
    EXPECT_EQ(graph.greatest_position, 30);  // at the turning point
    ASSERT_EQ(graph.curves.size(), 2U);
    EXPECT_EQ(graph.curves[0].stretch, 1);
    EXPECT_EQ(graph.curves[0].times, (std::vector<double>{0, 2}));
    EXPECT_EQ(graph.curves[0].positions, (std::vector<double>{0, 20}));
    const GraphCurve& braked = graph.curves[1];
    EXPECT_EQ(braked.stretch, 2);
    EXPECT_EQ(braked.times.front(), 2);
    EXPECT_EQ(braked.times.back(), 6);
    EXPECT_TRUE(graph.names.empty());
    for (std::size_t k = 0; k < braked.times.size(); ++k) {
        const double t = braked.times[k];
        EXPECT_NEAR(braked.positions[k], -10 + 20 * t - 2.5 * t * t, kTolerance);
        if (k > 0) {
            EXPECT_GT(t, braked.times[k - 1]);
        }
    }
}

TEST(Graph, TheOtherMoverJoinsWhereItIsInTheTable) {
    Problem problem = TwoMovers(4);
    GiveMotion(problem, 1, 1, {0, 22, 0});
    GiveMotion(problem, 2, 1, {0, 0, 2});
    SetTime(problem, 1, 0, 0);
    SetTime(problem, 1, 3, 20);
    EXPECT_EQ(GraphOf(problem, {1, 1, 0}, {1, 1, 3}).curves.size(), 1U);
    SetTime(problem, 2, 0, -3);
    EXPECT_EQ(GraphOf(problem, {1, 1, 0}, {1, 1, 3}).curves.size(), 1U) << "one time makes no curve";
    SetTime(problem, 2, 4, 30);
    MotionGraph graph = GraphOf(problem, {1, 1, 0}, {1, 1, 3});
    ASSERT_EQ(graph.curves.size(), 2U);
    EXPECT_EQ(graph.curves[1].mover, 2);
    EXPECT_EQ(graph.curves[1].times.front(), 0);
    EXPECT_EQ(graph.curves[1].times.back(), 20);
    EXPECT_EQ(graph.greatest_position, 440);
    ASSERT_EQ(graph.names.size(), 1U);
    EXPECT_EQ(graph.names[0].name, "X");
    EXPECT_EQ(graph.names[0].mover, 2);
    SetTime(problem, 2, 4, 10);
    EXPECT_EQ(GraphOf(problem, {1, 1, 0}, {1, 1, 3}).curves[1].times.back(), 10);
    SetTime(problem, 2, 0, 21);
    SetTime(problem, 2, 4, 30);
    EXPECT_EQ(GraphOf(problem, {1, 1, 0}, {1, 1, 3}).curves.size(), 1U) << "outside the frame";
    // Seen from mover 2, mover 1 joins.
    graph = GraphOf(problem, {2, 1, 0}, {2, 1, 4});
    EXPECT_EQ(graph.curves.size(), 1U);
    SetTime(problem, 2, 0, 10);
    graph = GraphOf(problem, {2, 1, 0}, {2, 1, 4});
    ASSERT_EQ(graph.curves.size(), 2U);
    EXPECT_EQ(graph.names[0].name, "x");
    problem.equations[SlotOf(1, 1)].kind = EquationKind::NotPlanted;
    EXPECT_EQ(GraphOf(problem, {2, 1, 0}, {2, 1, 4}).curves.size(), 1U);
}

TEST(Graph, RefusesByName) {
    const auto refused = [](const Problem& problem, const PointPlace& first, const PointPlace& last) {
        const auto answer = GraphBetween(problem, first, last);
        return std::holds_alternative<text::Refusal>(answer) ? std::get<text::Refusal>(answer).text : "drawn";
    };
    Problem problem = StretchedProblem();
    EXPECT_EQ(refused(TwoMovers(4), {1, 1, 0}, {2, 1, 1}), "Estás abarcando 2 móviles.");
    EXPECT_EQ(refused(problem, {1, 1, 2}, {1, 2, 4}),
              "El tiempo inicial no puede estar al final de un tramo.");
    EXPECT_EQ(refused(problem, {1, 2, 2}, {1, 2, 4}), "drawn");
    EXPECT_EQ(refused(problem, {1, 1, 0}, {1, 2, 2}),
              "El tiempo final no puede estar al inicio de un tramo.");
    EXPECT_EQ(refused(problem, {1, 1, 0}, {1, 1, 2}), "drawn");
    problem.equations[SlotOf(1, 1)].kind = EquationKind::NotPlanted;
    EXPECT_EQ(refused(problem, {1, 1, 0}, {1, 2, 4}), "No tengo la ecuación x = x(t) del móvil 1, tramo 1");
    EXPECT_EQ(refused(problem, {1, 2, 2}, {1, 2, 4}), "drawn");
    EXPECT_EQ(FailureOf([&] { (void)refused(problem, {1, 2, 2}, {1, 2, 5}); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([&] {
                  (void)refused(StretchedProblem(), {1, 1, 1}, {1, 1, 1});
              }),
              FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([&] {
                  (void)refused(TurningProblem(), {1, 1, 3}, {1, 1, 1});
              }),
              FailureCode::OutOfDomain);
}

TEST(Graph, AMoverAtRestHasNoRange) {
    Problem problem = OneMover();
    GiveMotion(problem, 1, 1, {7, 0, 0});
    SetTime(problem, 1, 0, 0);
    SetTime(problem, 1, 1, 1);
    const MotionGraph graph = GraphOf(problem, {1, 1, 0}, {1, 1, 1});
    EXPECT_EQ(graph.least_position, 7);
    EXPECT_EQ(graph.greatest_position, 7);
}

/// The turn at t = 5 lies between the even steps of the curve and is one of its points: the least position is
/// 0.
TEST(GraphBetween, ShowsTheTurningPointItself) {
    const auto answer = GraphBetween(TurningProblem(), {1, 1, 0}, {1, 1, 3});
    ASSERT_TRUE(std::holds_alternative<MotionGraph>(answer));
    const auto& graph = std::get<MotionGraph>(answer);
    ASSERT_EQ(graph.curves.size(), 1U);
    const std::vector<double>& times = graph.curves[0].times;
    EXPECT_EQ(std::count(times.begin(), times.end(), 5.0), 1);
    EXPECT_TRUE(std::is_sorted(times.begin(), times.end()));
    EXPECT_NEAR(graph.least_position, 0, kTolerance);
    EXPECT_EQ(graph.greatest_position, 25);
}

TEST(LegsBetween, NeedsPointsOfOneMoverInTheirOrder) {
    const Problem problem = TwoMovers(4);
    const auto answer = LegsBetween(problem, {1, 1, 0}, {2, 1, 0});
    ASSERT_TRUE(std::holds_alternative<text::Refusal>(answer));
    EXPECT_EQ(std::get<text::Refusal>(answer).text, kSpansMovers);
    Problem parted = OneMover({2});
    for (int point = 0; point <= 4; ++point)
        SetTime(parted, 1, point, point);
    EXPECT_EQ(FailureOf([&] { (void)LegsBetween(parted, {1, 2, 3}, {1, 1, 1}); }), FailureCode::OutOfDomain);
    const Problem turning = TurningProblem();
    EXPECT_EQ(FailureOf([&] { (void)LegsBetween(turning, {1, 1, 2}, {1, 1, 1}); }), FailureCode::OutOfDomain);
}
/// 120 lines across the whole frame: a stretch of 2 in 5 has 48, and 49 points; a uniform one its two ends.
TEST(GraphBetween, DividesCurvesByTheirPartOfTheFrame) {
    Problem problem = OneMover({2});
    GiveMotion(problem, 1, 1, {0, 0, 2});
    GiveMotion(problem, 1, 2, {-4, 4, 0});
    int point = 0;
    for (const double t : {0.0, 1.0, 2.0, 5.0})
        SetTime(problem, 1, point++, t);
    const auto answer = GraphBetween(problem, {1, 1, 0}, {1, 2, 3});
    ASSERT_TRUE(std::holds_alternative<MotionGraph>(answer));
    const auto& graph = std::get<MotionGraph>(answer);
    ASSERT_EQ(graph.curves.size(), 2U);
    EXPECT_EQ(graph.curves[0].times.size(), 49U);
    EXPECT_EQ(graph.curves[1].times.size(), 2U);
    EXPECT_EQ(graph.greatest_position, 16);
}
}  // namespace
}  // namespace tavrelo::mechanics::motion
