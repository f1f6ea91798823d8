// Whatever is typed in the rigid-body tool. A structure is built from the lines of the input and solved; the
// only exception that leaves is the documented failure, every number of a result is finite, and the opposite
// of a force is read again.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/rigid/body_solver.h"
#include "mechanics/rigid/chain_vectors.h"
#include "mechanics/rigid/line_command.h"
#include "mechanics/rigid/rigid_problem.h"
#include "numeric/checked.h"
#include "tools/rigid/equilibrium_report.h"
#include "tools/rigid/rigid_picture.h"
#include "window/surface.h"

namespace {

using namespace tavrelo;
using namespace tavrelo::mechanics::rigid;
using tools::rigid::EquilibriumReport;

constexpr int kDecimals = 3;
constexpr double kPictureSide = 400;

void RequireFinite(double number) {
    if (!std::isfinite(number))
        std::abort();
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines = {""};
    for (const char each : text)
        if (each == '\n')
            lines.emplace_back();
        else
            lines.back() += each;
    return lines;
}

/// Triangle ABC, and a chain of its own for the typed vector.
void TryChain(const std::vector<std::string>& lines, SegTable& segments, PointTable& points) {
    segments = {{"A", "B", 4, 0}, {"B", "C", 0, 3}};
    points = std::get<PointTable>(ComputeCoords(segments));
    CheckChain(lines.front());
    const std::vector<std::string> texts(lines.begin(), lines.end());
    const auto rows = ChainRows({"CDE", lines.front(), lines.back(), texts}, points, kDecimals);
    if (!std::holds_alternative<SegTable>(rows))
        return;
    SegTable longer = segments;
    for (const SegRow& row : std::get<SegTable>(rows))
        longer.push_back(row);
    const auto coords = ComputeCoords(longer);
    if (!std::holds_alternative<PointTable>(coords))
        return;
    segments = longer;
    points = std::get<PointTable>(coords);
    for (const PointRecord& point : points) {
        RequireFinite(point.x);
        RequireFinite(point.y);
    }
    CoordLines(segments, points, kDecimals);
    SepLines(segments, kDecimals);
}

void TryOpposite(const std::string& text, const PointRecord& point) {
    const auto opposite = NegateForceText(text);
    if (const auto* negated = std::get_if<std::string>(&opposite))
        ReadBodyForce(1, point, *negated, kDecimals);
}

BodyForces ForcesOf(const std::vector<std::string>& lines, const PointTable& points) {
    BodyForces forces;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const PointRecord& point = points[i % points.size()];
        ReadRowReference(lines[i]);
        const auto read = ReadBodyForce(1, point, lines[i], kDecimals);
        if (const auto* force = std::get_if<BodyForce>(&read)) {
            forces.push_back(*force);
            if (force->couple)
                RequireFinite(force->couple->value.value_or(0));
            TryOpposite(lines[i], point);
        }
    }
    return forces;
}

void Draw(const RigidProblem& problem) {
    window::Recorder canvas(kPictureSide, kPictureSide);
    tools::rigid::DiagramView view;
    view.Show(1, true);
    tools::rigid::RedrawAll(canvas, {problem, view, kDecimals});
}

void Solve(BodyForces& forces, std::string_view suppressed) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}};
    const auto built = BuildEquations(forces, bodies, suppressed);
    const auto* equations = std::get_if<BodyEquations>(&built);
    if (!equations)
        return;
    EquilibriumReport(bodies, *equations, {}, kDecimals);
    const auto outcome = SolveEquations(*equations, bodies.size());
    BodyResults results;
    if (const auto* choice = std::get_if<BodyChoice>(&outcome)) {
        tools::rigid::QuestionBetween(*choice, kDecimals);
        results = choice->front();
    } else if (const auto* only = std::get_if<BodyResults>(&outcome)) {
        results = *only;
    }
    for (const FoundUnknown& found : results)
        RequireFinite(found.value);
    forces = WithResults(forces, results, kDecimals);
    for (const BodyForce& force : forces)
        if (force.force)
            for (const auto& number :
                 {force.force->force.magnitude, force.force->force.x.number, force.force->force.y.number})
                RequireFinite(number.value_or(0));
    EquilibriumReport(bodies, *equations, results, kDecimals);
}

void Try(std::string_view text) {
    const std::vector<std::string> lines = LinesOf(text);
    RigidProblem problem;
    problem.systems = {"ABC", "AB", "C"};
    TryChain(lines, problem.structure.segments, problem.structure.points);
    const auto line = ReadLine(lines.back(), problem.systems, problem.structure.points);
    if (const auto* command = std::get_if<LineCommand>(&line))
        problem.lines.push_back(command->line);
    problem.forces = ForcesOf(lines, problem.structure.points);
    Solve(problem.forces, lines.back());
    Draw(problem);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        Try(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const numeric::RuntimeFailure&) {
    }
    return 0;
}
