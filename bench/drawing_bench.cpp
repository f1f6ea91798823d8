// Speed of drawing a frame of three bars with its forces.

#include <benchmark/benchmark.h>

#include "frame_forces.h"
#include "tools/rigid/rigid_picture.h"

namespace {

using namespace tavrelo;
using bench::FrameForces;
using bench::kDecimals;

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
