#include "mechanics/projectile/problem.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desk.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::projectile {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;
using Cells = std::vector<std::string>;

constexpr int kDecimals = 3;

const text::Refusal& RefusalIn(const std::variant<text::Refusal, Problem>& result) {
    return std::get<text::Refusal>(result);
}
Problem ProblemIn(const std::variant<text::Refusal, Problem>& result) { return std::get<Problem>(result); }

Cells Shown(const Problem& problem, int column) {
    Cells shown;
    for (int row = 0; row < points::kProjectileRows; ++row)
        shown.push_back(problem.table.At(row, column).shown);
    return shown;
}

TEST(Problem, OneMoverHasAllPointsAtOnce) {
    const Problem problem = Reconfigured({}, 0);
    EXPECT_TRUE(problem.configuration.IsConfigured());
    EXPECT_TRUE(problem.HasPoint(1, 8));
    EXPECT_FALSE(problem.HasPoint(1, 9));
    EXPECT_FALSE(problem.HasMover(2));
    EXPECT_FALSE(problem.HasMover(3));
}

TEST(Problem, TwoMoversAreDividedByAClick) {
    const Problem pending = Reconfigured({}, 1);
    EXPECT_FALSE(pending.configuration.IsConfigured());
    for (const double edge : {0.5, 7.5, 8.5})
        EXPECT_EQ(RefusalIn(WithBandClicked(pending, edge, kDecimals)).text,
                  "Mínimo 2 puntos para cada móvil.");
    const Problem problem = ProblemIn(WithBandClicked(pending, 4.5, kDecimals));
    EXPECT_TRUE(problem.HasPoint(1, 4));
    EXPECT_FALSE(problem.HasPoint(1, 5));
    EXPECT_TRUE(problem.HasPoint(2, 3));
    EXPECT_EQ(problem.ColumnOf(2, 0), 6);
    EXPECT_EQ(problem.modes, (std::array<SpeedMode, points::kMostPoints>{}));
}

TEST(Problem, ABandClickBeforeAnyConfigurationDoesNothing) {
    EXPECT_EQ(ProblemIn(WithBandClicked({}, 4.5, kDecimals)), Problem{});
}

// 3-4-5.
TEST(Problem, TogglingTurnsTheSpeedData) {
    Desk desk;
    desk.Column(2, {"1", "2", "3", "5", "53.13010235415598"});
    const Problem components = ProblemIn(WithBandClicked(desk.TheProblem(), 1.5, kDecimals));
    EXPECT_EQ(components.ModeOf(2), SpeedMode::Components);
    EXPECT_EQ(components.ModeOf(1), SpeedMode::Polar);
    EXPECT_EQ(Shown(components, 2), (Cells{"1", "2", "3", "3", "4"}));
    const Problem polar = ProblemIn(WithModeToggled(components, 2, kDecimals));
    EXPECT_EQ(polar.ModeOf(2), SpeedMode::Polar);
    EXPECT_EQ(Shown(polar, 2), (Cells{"1", "2", "3", "5", "53.13"}));
    EXPECT_NEAR(*polar.NumberAt(points::kDirectionRow, 2), 53.13010235415598, 1e-9);
}

TEST(Problem, TogglingLeavesWhatIsNoPairOfNumbers) {
    for (const Cells& cells :
         {Cells{"", "", "", "5", ""}, Cells{"", "", "", "", "30"}, Cells{"", "", "", "v", "30"}, Cells(5)}) {
        Desk desk;
        desk.Column(1, cells);
        const Problem toggled = ProblemIn(WithModeToggled(desk.TheProblem(), 1, kDecimals));
        EXPECT_EQ(toggled.ModeOf(1), SpeedMode::Components);
        EXPECT_EQ(toggled.table, desk.TheProblem().table);
    }
}

TEST(Problem, TogglingRefusesANegativeMagnitude) {
    Desk desk;
    desk.Column(1, {"", "", "", "-5", "30"});
    EXPECT_EQ(RefusalIn(WithModeToggled(desk.TheProblem(), 1, kDecimals)).text,
              "Tienes una magnitud no válida para la velocidad.");
    EXPECT_THROW((void)WithModeToggled(desk.TheProblem(), 10, kDecimals), numeric::RuntimeFailure);
}

TEST(Problem, ADraggedPointTakesItsModeAlong) {
    Desk desk;
    desk.Column(1, {"1", "2.00049", "t1", "3", "4"}).Components(1).Column(4, {"9", "9", "9", "9", "9"});
    const Problem moved = ProblemIn(WithPointDragged(desk.TheProblem(), 1, 4, false, kDecimals));
    EXPECT_EQ(Shown(moved, 4), (Cells{"1", "2", "t1", "3", "4"}));
    EXPECT_EQ(moved.table.Stored(1, 4).Text(), "2.00049");
    EXPECT_EQ(moved.ModeOf(4), SpeedMode::Components);
    EXPECT_TRUE(moved.table.IsEmptyColumn(1));
    const Problem copied = ProblemIn(WithPointDragged(desk.TheProblem(), 1, 4, true, kDecimals));
    EXPECT_EQ(Shown(copied, 1), (Cells{"1", "2.00049", "t1", "3", "4"}));
    EXPECT_EQ(ProblemIn(WithPointDragged(desk.TheProblem(), 1, 1, false, kDecimals)), desk.TheProblem());
}

TEST(Problem, WhatSurvivesWhat) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "20", "30"}).Click(Procedure::Plant, 0);
    desk.Column(2, {"1"}).Components(3);
    const Problem& problem = desk.TheProblem();
    const Problem emptied = WithEmptyTable(problem);
    EXPECT_TRUE(emptied.table.IsEmptyColumn(1));
    EXPECT_EQ(emptied.equations, problem.equations);
    EXPECT_EQ(emptied.modes, problem.modes);
    EXPECT_EQ(emptied.configuration, problem.configuration);
    const Problem reconfigured = Reconfigured(problem, 1);
    EXPECT_EQ(reconfigured.table, problem.table);
    EXPECT_EQ(reconfigured.equations, problem.equations);
    EXPECT_EQ(reconfigured.ModeOf(3), SpeedMode::Polar);
    EXPECT_TRUE(WithPointCleared(problem, 2).table.IsEmptyColumn(2));
    const Outcome erased = EraseEquations(problem);
    EXPECT_EQ(erased.problem.EquationsOf(1), Equations{});
    EXPECT_EQ(erased.problem.table, problem.table);
    EXPECT_EQ(erased.events.size(), 10u);
    EXPECT_THROW((void)Reconfigured(problem, 2), numeric::RuntimeFailure);
}

// (15, 9.8) rises for a second: it is as high again 2 seconds and 30 later.
TEST(OtherSide, FindsThePlaceOfTheSameHeight) {
    Desk desk;
    desk.Column(3, {"1", "2", "3", "15", "9.8"}).Components(3);
    const Problem other = ProblemIn(WithOtherSide(desk.TheProblem(), {1, 2}, kDecimals));
    EXPECT_EQ(Shown(other, 3), (Cells{"3", "32", "3", "15", "-9.8"}));
    desk.Column(4, {"1", "2", "3", "17.917589123540036", "33.15793165467762"});
    const Problem polar = ProblemIn(WithOtherSide(desk.TheProblem(), {1, 3}, kDecimals));
    EXPECT_EQ(Shown(polar, 4), (Cells{"3", "32", "3", "17.918", "-33.158"}));
}

TEST(OtherSide, NeedsAllNumbersAndASpeed) {
    for (const Cells& cells : {Cells{"1", "2", "3", "", "30"}, Cells{"1", "2", "3", "-5", "30"},
                               Cells{"", "2", "3", "5", "30"}, Cells{"t1+2", "2", "3", "5", "30"}}) {
        Desk desk;
        desk.Column(1, cells);
        EXPECT_EQ(RefusalIn(WithOtherSide(desk.TheProblem(), {1, 0}, kDecimals)).text,
                  "No hay valor válido de la velocidad.");
    }
}

// The path and its graph. Mover 1 level with 10 from (0, 44.1): in 3 seconds 30 across and 44.1 down.

Desk TwoMovers() {
    Desk desk(2, 5);
    desk.Column(1, {"0", "0", "44.1", "10", "0"}).Column(2, {"3"}).Column(6, {"0", "30", "0", "14.7", "90"});
    desk.Column(7, {"3"}).Click(Procedure::Plant, 0, 1);
    desk.Report();
    return desk;
}

// The path from t = 0 to 3: the integral of sqrt(100 + (9.8 t)^2), with s = 2.94:
// 10 * 10/9.8 * (s sqrt(1 + s^2) + arsinh s) / 2 = 55.761.
TEST(ClickInterval, MeasuresThePathAndDrawsBothMovers) {
    Desk desk = TwoMovers();
    desk.Click(Procedure::Plant, 0, 2);
    desk.Report();
    desk.Interval({1, 0}, {1, 1});
    EXPECT_EQ(desk.Report(), (Lines{"La distancia recorrida por el móvil 1 entre",
                                    "los tiempos 0 y 3, correspondientes a las posiciones",
                                    "x = 0 y x = 30 es:", "55.761"}));
    EXPECT_EQ(desk.Boxes(), Lines{});
    ASSERT_TRUE(desk.LastGraph());
    const Graph& graph = *desk.LastGraph();
    ASSERT_EQ(graph.curves.size(), 2u);
    EXPECT_EQ(graph.curves[0].name, "y");
    EXPECT_EQ(graph.curves[1].name, "Y");
    EXPECT_EQ(graph.curves[1].mover, 2);
    EXPECT_EQ(graph.labels, (std::array<std::string, 4>{"0", "30", "0", "44.1"}));
    EXPECT_EQ(graph.height, 1.0);
    EXPECT_NEAR(graph.width, 30 / 44.1, 1e-12);
    const numeric::Point end = graph.Placed(graph.curves[0].points.back());
    EXPECT_NEAR(end.x, 1, 1e-12);
    EXPECT_NEAR(end.y, 0, 1e-6);
    // The top of mover 2, 14.7^2 / 19.6 = 11.025, halfway.
    EXPECT_NEAR(graph.curves[1].points[100].y, 11.025, 1e-6);
}

TEST(ClickInterval, TakesTheTimesInEitherOrderAndDrawsNothingWithoutGraph) {
    Desk desk = TwoMovers();
    desk.Interval({1, 1}, {1, 0}, false);
    EXPECT_EQ(desk.Report().back(), "55.761");
    EXPECT_EQ(desk.Boxes(), Lines{});
    EXPECT_FALSE(desk.LastGraph());
}

TEST(ClickInterval, Refuses) {
    Desk desk = TwoMovers();
    EXPECT_EQ(desk.Interval({1, 0}, {1, 1}).Boxes(),
              Lines{"Me faltan las ecuaciones de uno de los móviles."});
    EXPECT_EQ(desk.Report().size(), 4u);
    EXPECT_EQ(desk.Interval({1, 0}, {2, 1}).Boxes(), Lines{"Estás abarcando dos móviles."});
    EXPECT_EQ(desk.Interval({1, 0}, {1, 2}).Boxes(), Lines{"No tengo uno de los tiempos límites."});
    EXPECT_EQ(desk.Interval({2, 0}, {2, 1}).Boxes(), Lines{"No tengo las ecuaciones del móvil 2."});
    desk.Click(Procedure::Plant, 0, 2).Report();
    EXPECT_EQ(desk.Interval({2, 0}, {2, 1}).Boxes(), Lines{"No pude calcular la distancia recorrida."});
    EXPECT_FALSE(desk.LastGraph());
    EXPECT_EQ(std::get<text::Refusal>(ClickInterval({}, {1, 0}, {1, 1}, true, kDecimals)).text,
              kConfigureFirst);
}

TEST(Graph, AFlatTrajectoryGetsASquareFrame) {
    const Flight flat = FlightFrom({0, 0, 0}, {100, 0}, kDecimals);
    const Graph graph = GraphOf({{1, &flat, 0, 0.5}}, kDecimals);  // 50 across, 1.225 down
    EXPECT_EQ(graph.width, 1);
    EXPECT_EQ(graph.height, 1);
    EXPECT_EQ(graph.labels[2], "-1.225");
    EXPECT_TRUE(GraphOf({}, kDecimals).curves.empty());
}

TEST(Graph, APointLiesInTheMiddle) {
    const Flight flight = FlightFrom({0, 5, 7}, {3, 4}, kDecimals);
    const Graph graph = GraphOf({{1, &flight, 0, 0}}, kDecimals);
    EXPECT_EQ(graph.Placed(graph.curves[0].points[0]), (numeric::Point{0.5, 0.5}));
}

/// The other mover joins the graph from its first time to its last one, and needs two.
TEST(ClickInterval, DrawsTheOtherMoverBetweenItsOwnTimes) {
    for (const auto& [times, curves] : {std::pair(Cells{"", ""}, 1U), std::pair(Cells{"", "1"}, 1U),
                                        std::pair(Cells{"0", ""}, 1U), std::pair(Cells{"0", "1"}, 2U)}) {
        Desk desk(2, 5);
        desk.Column(1, {"0", "0", "0", "10", "45"}).Column(6, {"0", "5", "0", "10", "90"});
        desk.Click(Procedure::Plant, 0, 1).Click(Procedure::Plant, 0, 2);
        desk.Column(2, {"1"}).Column(6, {times[0]}).Column(7, {times[1]});
        desk.Interval({1, 0}, {1, 1});
        ASSERT_TRUE(desk.LastGraph());
        EXPECT_EQ(desk.LastGraph()->curves.size(), curves) << times[0] << ", " << times[1];
    }
}

TEST(Problem, HasNoOtherMovers) {
    const Problem problem = Reconfigured({}, 0);
    for (const int mover : {0, points::kMostMovers + 1})
        EXPECT_THROW((void)problem.EquationsOf(mover), numeric::RuntimeFailure);
}

/// A path takes two clicks: one alone changes and tells nothing.
TEST(ClickPoint, DoesNothingOnAPath) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "10", "45"}).Click(Procedure::Plant, 0);
    desk.Report();
    desk.Board();
    desk.Click(Procedure::PathAndGraph, 0);
    EXPECT_EQ(desk.Report(), Lines{});
    EXPECT_EQ(desk.Board(), Lines{});
    EXPECT_EQ(desk.Boxes(), Lines{});
}
}  // namespace
}  // namespace tavrelo::mechanics::projectile
