// Speed of what a click in the projectile tool reckons: a launch planted, each kind of substitution, the
// search for a component by its quartic, a collision, the time of an interception, and a graph of two movers.
// A click has sixteen milliseconds, its drawing included.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "mechanics/projectile/procedures.h"

namespace {

using namespace tavrelo::mechanics;
using namespace tavrelo::mechanics::projectile;

constexpr int kDecimals = 3;
using Cells = std::vector<std::string>;

void Fill(Problem& problem, int column, const Cells& cells) {
    for (std::size_t row = 0; row < cells.size(); ++row)
        problem.table.At(static_cast<int>(row), column) = points::PastedCell(cells[row], kDecimals);
}

Problem After(const Step& step) { return std::get<Outcome>(step).problem; }

/// Mover 1 planted from its cells, and a point to be clicked.
Problem Prepared(const Cells& launch, SpeedMode mode, const Cells& point) {
    Problem problem = Reconfigured({}, 0);
    problem.modes[0] = mode;
    Fill(problem, 1, launch);
    problem = After(ClickPoint(problem, Procedure::Plant, {1, 0}, kDecimals));
    Fill(problem, 2, point);
    return problem;
}

void Plant(benchmark::State& state, const Cells& launch) {
    Problem problem = Reconfigured({}, 0);
    Fill(problem, 1, launch);
    for (auto _ : state)
        benchmark::DoNotOptimize(ClickPoint(problem, Procedure::Plant, {1, 0}, kDecimals));
}
BENCHMARK_CAPTURE(Plant, complete, Cells{"0", "0", "10", "20", "30"});
BENCHMARK_CAPTURE(Plant, both_unknown, Cells{"2", "5", "10"});

void Substitute(benchmark::State& state, Procedure procedure, const Cells& launch, SpeedMode mode,
                const Cells& point) {
    const Problem problem = Prepared(launch, mode, point);
    for (auto _ : state)
        benchmark::DoNotOptimize(ClickPoint(problem, procedure, {1, 1}, kDecimals));
}
const Cells kComplete = {"0", "0", "80", "15", "30"};
const Cells kUnknownSpeed = {"0", "0", "0", "", "60"};
const Cells kUnknownAngle = {"0", "0", "0", "20", ""};
const Cells kUnknownVx = {"0", "0", "0", "", "15"};
const Cells kUnknownVy = {"0", "0", "0", "12", ""};
BENCHMARK_CAPTURE(Substitute, time, Procedure::Substitute, kComplete, SpeedMode::Polar, Cells{"2"});
BENCHMARK_CAPTURE(Substitute, height, Procedure::Substitute, kComplete, SpeedMode::Polar, Cells{"", "", "0"});
BENCHMARK_CAPTURE(Substitute, speed, Procedure::Substitute, kComplete, SpeedMode::Polar,
                  Cells{"", "", "", "20"});
BENCHMARK_CAPTURE(Substitute, v0_from_place, Procedure::SubstituteInPolar, kUnknownSpeed, SpeedMode::Polar,
                  Cells{"", "20", "5"});
BENCHMARK_CAPTURE(Substitute, v0_from_speed, Procedure::SubstituteInPolar, kUnknownSpeed, SpeedMode::Polar,
                  Cells{"1", "", "", "15"});
BENCHMARK_CAPTURE(Substitute, angle_to_a_target, Procedure::SubstituteInPolar, kUnknownAngle,
                  SpeedMode::Polar, Cells{"", "30", "0"});
BENCHMARK_CAPTURE(Substitute, v0x_from_place, Procedure::SubstituteInComponents, kUnknownVx,
                  SpeedMode::Components, Cells{"", "20", "10"});
BENCHMARK_CAPTURE(Substitute, v0y_from_place, Procedure::SubstituteInComponents, kUnknownVy,
                  SpeedMode::Components, Cells{"", "30", "20"});

void SearchQuartic(benchmark::State& state) {
    const Problem problem = Prepared(kUnknownVx, SpeedMode::Components, {"", "30", "", "25"});
    const Step asked = ClickPoint(problem, Procedure::SubstituteInComponents, {1, 1}, kDecimals);
    const LimitRequest request = std::get<AskLimit>(std::get<Outcome>(asked).events.front()).request;
    for (auto _ : state)
        benchmark::DoNotOptimize(ContinueWithLimit(problem, request, "40", kDecimals));
}
BENCHMARK(SearchQuartic);

Problem TwoMovers(const Cells& first, const Cells& second) {
    Problem problem = std::get<Problem>(WithBandClicked(Reconfigured({}, 1), 4.5, kDecimals));
    Fill(problem, 1, first);
    Fill(problem, 6, second);
    Fill(problem, 2, {"3"});
    Fill(problem, 7, {"3"});
    problem = After(ClickPoint(problem, Procedure::Plant, {1, 0}, kDecimals));
    return After(ClickPoint(problem, Procedure::Plant, {2, 0}, kDecimals));
}

void Special(benchmark::State& state, projectile::Special special, const Cells& second,
             const std::string& typed) {
    const Problem problem = TwoMovers({"0", "0", "0", "25", "60"}, second);
    for (auto _ : state)
        benchmark::DoNotOptimize(RunSpecial(problem, special, typed, kDecimals));
}
BENCHMARK_CAPTURE(Special, crossing, projectile::Special::Crossing, Cells{"0", "40", "5", "20", "120"}, "");
BENCHMARK_CAPTURE(Special, collision, projectile::Special::Collision, Cells{"0", "40", "0", "30"}, "");
BENCHMARK_CAPTURE(Special, incline, projectile::Special::Incline, Cells{"0", "40", "5", "20", "120"},
                  "1, 0, 20");
BENCHMARK_CAPTURE(Special, mixed_pair, projectile::Special::MixedPair, Cells{"0", "40", "5", "20", "120"},
                  "15, -1102.5, 6, 1, -9.8, 0.1");

void InterceptByQuartic(benchmark::State& state) {
    const Problem problem = Prepared({"0", "-20", "0", "20"}, SpeedMode::Polar, {});
    const Step asked = RunSpecial(problem, projectile::Special::Interception, "u = 0", kDecimals);
    const LimitRequest request = std::get<AskLimit>(std::get<Outcome>(asked).events.front()).request;
    for (auto _ : state)
        benchmark::DoNotOptimize(ContinueWithLimit(problem, request, "10", kDecimals));
}
BENCHMARK(InterceptByQuartic);

void PathAndGraph(benchmark::State& state) {
    const Problem problem = TwoMovers({"0", "0", "0", "25", "60"}, {"0", "40", "5", "20", "120"});
    for (auto _ : state)
        benchmark::DoNotOptimize(ClickInterval(problem, {1, 0}, {1, 1}, true, kDecimals));
}
BENCHMARK(PathAndGraph);

}  // namespace
