// Speed of reading vectors, of whole particle problems, one of each kind of unknowns, and of solving and
// drawing a frame of three bars.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "statics/body_solver.h"
#include "statics/particle_solver.h"
#include "statics/rigid_picture.h"
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

struct TypedForce {
    int body;
    const char* point;
    double x, y;
    const char* text;
};

// The legs ABC and CDE of an A and its bar BD with 60 in the middle: nine unknowns.
constexpr TypedForce kFrame[] = {
    {2, "A", 0, 0, "Ax, Ay"},   {2, "B", 1, 2, "-Bx, -By"}, {2, "C", 2, 4, "Cx, Cy"},
    {3, "C", 2, 4, "-Cx, -Cy"}, {3, "D", 3, 2, "-Dx, -Dy"}, {3, "E", 4, 0, "vE"},
    {4, "B", 1, 2, "Bx, By"},   {4, "D", 3, 2, "Dx, Dy"},   {4, "F", 2, 2, "v-60"},
};

statics::BodyForces FrameForces() {
    statics::BodyForces forces;
    for (const auto& [body, point, x, y, text] : kFrame)
        forces.push_back(
            std::get<statics::BodyForce>(statics::ReadBodyForce(body, {point, x, y, 0, 0}, text, kDecimals)));
    return forces;
}

void SolveFrame(benchmark::State& state) {
    const statics::BodyForces forces = FrameForces();
    const std::vector<statics::ChosenBody> bodies = {{2, false, 0, 0}, {3, false, 0, 0}, {4, false, 0, 0}};
    for (auto _ : state) {
        const auto equations = std::get<statics::BodyEquations>(statics::BuildEquations(forces, bodies, ""));
        benchmark::DoNotOptimize(statics::SolveEquations(equations, bodies.size()));
    }
}
BENCHMARK(SolveFrame);

void DrawFrame(benchmark::State& state) {
    statics::BodyForces forces = FrameForces();
    statics::PointTable points;
    for (const auto& force : forces)
        if (statics::PointIndex(points, force.point) == 0)
            points.push_back({force.point, force.x, force.y, 0, 0});
    const statics::LineTable lines = {{"ABC", 2}, {"CDE", 3}, {"BFD", 4}};
    const statics::SystemPoints systems = {"ABCDEF", "ABC", "CDE", "BFD"};
    const statics::ShownDCL shown = {false, true, true, true};
    shell::Recorder canvas(397, 385);
    for (auto _ : state)
        statics::RedrawAll(canvas, {points, lines, systems, forces, shown, kDecimals});
}
BENCHMARK(DrawFrame);

}  // namespace
