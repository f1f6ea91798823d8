// Speed of reading vectors, of whole particle problems, one of each kind of unknowns, and of solving and
// drawing a frame of three bars.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "mechanics/forces/read_forces.h"
#include "mechanics/particle/particle_solver.h"
#include "mechanics/rigid/body_solver.h"
#include "notation/force_parser.h"
#include "notation/vector_parser.h"
#include "tools/rigid/rigid_picture.h"

namespace {

using namespace tavrelo;

constexpr int kDecimals = 3;

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

std::vector<mechanics::rigid::ReadForce> FrameForces() {
    std::vector<mechanics::rigid::ReadForce> forces;
    for (const auto& [body, point, x, y, text] : kFrame)
        forces.push_back(std::get<mechanics::rigid::ReadForce>(
            mechanics::rigid::ReadBodyForce(body, {point, x, y}, text, kDecimals)));
    return forces;
}

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

void DrawFrame(benchmark::State& state) {
    mechanics::rigid::RigidProblem problem;
    tools::rigid::DiagramView view = {.shown = {false, true, true, true}};
    for (const auto& [force, written] : FrameForces()) {
        problem.forces.push_back(force);
        view.looks.push_back(tools::rigid::LookOf(written));
        if (!mechanics::rigid::FindPoint(problem.structure.points, force.point))
            problem.structure.points.push_back({force.point, force.x, force.y});
    }
    problem.lines = {{"ABC", 2}, {"CDE", 3}, {"BFD", 4}};
    problem.systems = {"ABCDEF", "ABC", "CDE", "BFD"};
    window::Recorder canvas(397, 385);
    for (auto _ : state)
        tools::rigid::RedrawAll(canvas, {problem, view, kDecimals});
}
BENCHMARK(DrawFrame);

}  // namespace
