// Speed of the procedures of motion: a click on a point, typed data, two movers. Each is far under a
// millisecond.

#include <benchmark/benchmark.h>

#include <string>

#include "mechanics/motion/equation_systems.h"
#include "mechanics/motion/graph.h"
#include "mechanics/motion/interval_equations.h"
#include "mechanics/motion/procedures.h"
#include "mechanics/motion/two_movers.h"

namespace {

using namespace tavrelo;
namespace motion = mechanics::motion;
namespace points = mechanics::points;

constexpr int kDecimals = 3;

void SolveAnInterval(benchmark::State& state, const std::string& line) {
    for (auto _ : state)
        benchmark::DoNotOptimize(motion::ApplyIntervalEquations(line, kDecimals));
}
BENCHMARK_CAPTURE(SolveAnInterval, with_ends, std::string("a = 3, xi = 12, xf = 23, dt = 6"));
BENCHMARK_CAPTURE(SolveAnInterval, with_a_square, std::string("a = -9.8, dx = -20, vi = 5"));

void SolveASystem(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            motion::ReportSystem(motion::SystemShape::V2A2A_V2A, "1, 1, 0, 13, 1, 1, 11", kDecimals));
}
BENCHMARK(SolveASystem);

// A throw up at 20, and what is known of its point 2.
motion::Problem Throw(const text::Value& v, const points::Cell& t, const points::Cell& x) {
    motion::Problem problem = motion::Reconfigured({}, 0);
    problem.accelerations[0] = motion::TypedAcceleration("-g");
    problem.table.At(points::kTimeRow, 1).stored = 0;
    problem.table.At(points::kPositionRow, 1).stored = 0;
    problem.table.At(points::kSpeedRow, 1).stored = v;
    problem.table.At(points::kTimeRow, 3) = t;
    problem.table.At(points::kPositionRow, 3) = x;
    return problem;
}

motion::Problem Planted(const motion::Problem& problem) {
    return std::get<motion::Outcome>(
               motion::ClickPoint(problem, motion::Procedure::Plant, {1, 1, 0}, kDecimals))
        .problem;
}

void PlantEquations(benchmark::State& state) {
    const motion::Problem problem = Throw(20, {}, {});
    for (auto _ : state)
        benchmark::DoNotOptimize(motion::ClickPoint(problem, motion::Procedure::Plant, {1, 1, 0}, kDecimals));
}
BENCHMARK(PlantEquations);

void SubstituteAPosition(benchmark::State& state) {
    const motion::Problem problem = Planted(Throw(20, {}, {"15", "15"}));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            motion::ClickPoint(problem, motion::Procedure::Substitute, {1, 1, 2}, kDecimals));
}
BENCHMARK(SubstituteAPosition);

void SubstituteAnIncrementAndAFactor(benchmark::State& state) {
    const motion::Problem problem = Planted(Throw(20, {"t1+1", "t1+1"}, {"2*x1", "2*x1"}));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            motion::ClickPoint(problem, motion::Procedure::Substitute, {1, 1, 2}, kDecimals));
}
BENCHMARK(SubstituteAnIncrementAndAFactor);

void FindAnUnknownSpeed(benchmark::State& state) {
    const motion::Problem problem = Planted(Throw({}, {"3", "3"}, {"15.9", "15.9"}));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            motion::ClickPoint(problem, motion::Procedure::SubstituteWithParameters, {1, 1, 2}, kDecimals));
}
BENCHMARK(FindAnUnknownSpeed);

// A motorist at 22 and a policeman who starts from rest.
motion::Problem Pursuit() {
    constexpr double kFirstPoints = 3.5;
    motion::Problem problem;
    problem.configuration =
        points::ClickBand(points::Begin(points::kMotionVariants[2]), kFirstPoints).configuration;
    problem.equations[motion::SlotOf(1, 1)] = {motion::EquationKind::Complete, 0, 0, 0, 22, 0};
    problem.equations[motion::SlotOf(2, 1)] = {motion::EquationKind::Complete, 0, 0, 0, 0, 2};
    for (const int mover : {1, 2})
        for (const int point : {0, 1})
            problem.table.SetNumber(points::kTimeRow,
                                    points::ColumnOfPoint(problem.configuration, mover, point), 25.0 * point,
                                    kDecimals);
    return problem;
}

void Meet(benchmark::State& state) {
    const motion::Problem problem = Pursuit();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            motion::ApplyRelation(problem, motion::Relation::PositionDifference, "0", kDecimals));
}
BENCHMARK(Meet);

void GraphOfTwoMovers(benchmark::State& state) {
    const motion::Problem problem = Pursuit();
    for (auto _ : state)
        benchmark::DoNotOptimize(motion::GraphBetween(problem, {1, 1, 0}, {1, 1, 1}));
}
BENCHMARK(GraphOfTwoMovers);

}  // namespace
