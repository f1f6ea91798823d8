// Speed of reading vectors and of whole particle problems, one of each kind of unknowns.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "statics/particle_solver.h"
#include "vectors/force_parser.h"
#include "vectors/vector_parser.h"

namespace {

using namespace tavrelo;

constexpr int kDecimals = 3;

void ParseForce(benchmark::State& state, const std::string& text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(vectors::ParseForce(text, kDecimals));
}
BENCHMARK_CAPTURE(ParseForce, quadrant_symbol, std::string("p30x,2F1"));
BENCHMARK_CAPTURE(ParseForce, polar_number, std::string("230<-34"));
BENCHMARK_CAPTURE(ParseForce, both_unknown, std::string("F1<a1"));

void ParseVector(benchmark::State& state, const std::string& text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(vectors::ParseVector(text));
}
BENCHMARK_CAPTURE(ParseVector, quadrant, std::string("p30x,10"));
BENCHMARK_CAPTURE(ParseVector, components, std::string("3,-4"));

void SolveParticle(benchmark::State& state, const std::vector<std::string>& forces) {
    const auto table = std::get<statics::ForceTable>(statics::ForcesOf(forces, kDecimals));
    for (auto _ : state)
        benchmark::DoNotOptimize(statics::SolveEquilibrium(table, kDecimals));
}
BENCHMARK_CAPTURE(SolveParticle, two_magnitudes, std::vector<std::string>{"p30x,F1", "s45x,F2", "v-100"});
BENCHMARK_CAPTURE(SolveParticle, magnitude_and_angle, std::vector<std::string>{"p30x,F1", "20<a", "3,-20"});
BENCHMARK_CAPTURE(SolveParticle, two_angles, std::vector<std::string>{"3<a", "4<b", "h-5"});
BENCHMARK_CAPTURE(SolveParticle, shared_magnitude, std::vector<std::string>{"vF", "F<a", "-10,-10"});

}  // namespace
