// Whatever is typed in the rigid-body tool. A structure is built from the lines of the input, its forces are
// read, drawn and solved; the only exception that leaves is the documented failure, every number of a result
// is finite, results satisfy the equations, and the opposite of a force is read again.

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "harness.h"
#include "mechanics/rigid/equilibrium_check.h"
#include "mechanics/rigid/force_steps.h"
#include "mechanics/rigid/structure_steps.h"
#include "numeric/checked.h"
#include "tools/rigid/equilibrium_report.h"
#include "tools/rigid/rigid_picture.h"
#include "window/surface.h"

namespace {

using namespace tavrelo;
using fuzz::PiecesOf;
using fuzz::Require;
using namespace tavrelo::mechanics::rigid;
using tools::rigid::EquilibriumReport;
using Lines = std::vector<std::string>;

constexpr int kDecimals = 3;
constexpr double kPictureSide = 400;

void RequireFinite(std::optional<double> number) { Require(std::isfinite(number.value_or(0))); }

RigidProblem Triangle() {
    RigidProblem problem;
    for (const auto& [chain, vector] : {std::pair{"AB", "h4"}, {"BC", "v3"}})
        problem =
            std::get<StructureStep>(WithVectors(problem, {chain, vector, "", {}}, "A", kDecimals)).problem;
    return WithSystem(WithSystem(problem, 2, "AB"), 3, "C");
}

/// The triangle, and a chain of its own for the typed vector.
RigidProblem Structured(const Lines& lines) {
    RigidProblem problem = Triangle();
    CheckChain(lines.front());
    const auto outcome =
        WithVectors(problem, {"CDE", lines.front(), lines.back(), lines}, lines.back(), kDecimals);
    if (const auto* step = std::get_if<StructureStep>(&outcome)) {
        problem = step->problem;
        WithoutLastVector(problem, lines.back());
    }
    for (const PointRecord& point : problem.structure.points) {
        RequireFinite(point.x);
        RequireFinite(point.y);
    }
    const auto& [segments, points, origin] = problem.structure;
    CoordLines(segments, points, kDecimals);
    SepLines(segments, kDecimals);
    const auto line = ReadLine(lines.back(), problem.systems, points);
    if (const auto* command = std::get_if<LineCommand>(&line))
        problem = WithLine(problem, *command);
    return problem;
}

void TryOpposite(const RigidProblem& problem, const std::string& text) {
    ReadRowReference(text);
    const auto opposite = NegateForceText(text);
    if (const auto* negated = std::get_if<std::string>(&opposite))
        WithForces(problem, {1, "A", *negated, {}}, kDecimals);
}

/// Each line is a force on one of the points; the lines are a series, too.
RigidProblem Loaded(RigidProblem problem, const Lines& lines, tools::rigid::DiagramView& view) {
    constexpr const char* kPoints[] = {"A", "B", "C", "ABC"};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        TryOpposite(problem, lines[i]);
        auto outcome = WithForces(problem, {1, kPoints[i % std::size(kPoints)], lines[i], lines}, kDecimals);
        auto* step = std::get_if<ForceStep>(&outcome);
        if (!step)
            continue;
        problem = step->problem;
        for (const auto& written : step->written)
            view.looks.push_back(tools::rigid::LookOf(written));
    }
    for (const BodyForce& row : problem.forces)
        if (row.couple)
            RequireFinite(row.couple->value);
    return problem;
}

void Draw(const RigidProblem& problem, const tools::rigid::DiagramView& view) {
    window::Recorder canvas(kPictureSide, kPictureSide);
    tools::rigid::RedrawAll(canvas, {problem, view, kDecimals});
}

BodyResults ResultsOf(const BodyOutcome& outcome) {
    if (const auto* choice = std::get_if<BodyChoice>(&outcome)) {
        tools::rigid::QuestionBetween(*choice, kDecimals);
        return choice->front();
    }
    const auto* only = std::get_if<BodyResults>(&outcome);
    return only ? *only : BodyResults{};
}

void RequireFinite(const BodyForces& forces) {
    for (const BodyForce& row : forces)
        if (row.force) {
            RequireFinite(row.force->x.number);
            RequireFinite(row.force->y.number);
            RequireFinite(row.force->magnitude);
            RequireFinite(row.force->direction);
        }
}

RigidProblem Solved(RigidProblem problem, std::string_view suppressed) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}};
    const auto built = BuildEquations(problem.forces, bodies, suppressed);
    const auto* equations = std::get_if<BodyEquations>(&built);
    if (!equations)
        return problem;
    EquilibriumReport(bodies, *equations, {}, kDecimals);
    const BodyResults results = ResultsOf(SolveEquations(*equations, bodies.size()));
    if (results.empty())
        return problem;
    for (const FoundUnknown& found : results)
        RequireFinite(found.value);
    Require(HoldsWith(*equations, results));
    EquilibriumReport(bodies, *equations, results, kDecimals);
    problem.forces = WithResults(problem.forces, results);
    RequireFinite(problem.forces);
    return problem;
}

void Try(std::string_view text) {
    const Lines lines = PiecesOf(text, '\n');
    tools::rigid::DiagramView view;
    view.Show(1, true);
    const RigidProblem problem = Loaded(Structured(lines), lines, view);
    Draw(problem, view);
    const RigidProblem solved = Solved(problem, lines.back());
    for (std::size_t i = 0; i < view.looks.size(); ++i)
        view.looks[i] = tools::rigid::SolvedLook(view.looks[i], solved.forces[i], kDecimals);
    Draw(solved, view);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        Try(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const numeric::RuntimeFailure&) {
    }
    return 0;
}
