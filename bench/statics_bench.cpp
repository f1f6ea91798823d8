// Speed of reading vectors, of whole particle problems, one of each kind of unknowns, and of solving a
// frame of three bars.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "frame_forces.h"
#include "mechanics/forces/read_forces.h"
#include "mechanics/particle/particle_solver.h"
#include "mechanics/rigid/body_solver.h"
#include "notation/force_parser.h"
#include "notation/vector_parser.h"

namespace {

using namespace tavrelo;

using bench::FrameForces;
using bench::kDecimals;

void ParseForce(benchmark::State& state, const std::string& text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(notation::ParseForce(text, kDecimals));
}
BENCHMARK_CAPTURE(ParseForce, quadrant_symbol, std::string("p30x,2F1"));
BENCHMARK_CAPTURE(ParseForce, polar_number, std::string("230<-34"));
BENCHMARK_CAPTURE(ParseForce, both_unknown, std::string("F1<a1"));

void ParseVector(benchmark::State& state, const std::string& text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(notation::ParseVector(text));
}
BENCHMARK_CAPTURE(ParseVector, quadrant, std::string("p30x,10"));
BENCHMARK_CAPTURE(ParseVector, components, std::string("3,-4"));

void SolveParticle(benchmark::State& state, const std::vector<std::string>& forces) {
    const auto records =
        std::get<std::vector<notation::ForceRecord>>(mechanics::forces::ReadForces(forces, kDecimals));
    const std::vector<notation::Force> table = mechanics::forces::ForcesOf(records);
    for (auto _ : state)
        benchmark::DoNotOptimize(mechanics::particle::SolveEquilibrium(table, kDecimals));
}
BENCHMARK_CAPTURE(SolveParticle, two_magnitudes, std::vector<std::string>{"p30x,F1", "s45x,F2", "v-100"});
BENCHMARK_CAPTURE(SolveParticle, magnitude_and_angle, std::vector<std::string>{"p30x,F1", "20<a", "3,-20"});
BENCHMARK_CAPTURE(SolveParticle, two_angles, std::vector<std::string>{"3<a", "4<b", "h-5"});
BENCHMARK_CAPTURE(SolveParticle, shared_magnitude, std::vector<std::string>{"vF", "F<a", "-10,-10"});

void SolveFrame(benchmark::State& state) {
    mechanics::rigid::BodyForces forces;
    for (const auto& [force, written] : FrameForces())
        forces.push_back(force);
    const std::vector<mechanics::rigid::ChosenBody> bodies = {
        {2, false, 0, 0}, {3, false, 0, 0}, {4, false, 0, 0}};
    for (auto _ : state) {
        const auto equations =
            std::get<mechanics::rigid::BodyEquations>(mechanics::rigid::BuildEquations(forces, bodies, ""));
        benchmark::DoNotOptimize(mechanics::rigid::SolveEquations(equations, bodies.size()));
    }
}
BENCHMARK(SolveFrame);

}  // namespace
