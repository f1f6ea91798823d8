// Whatever is typed into the boxes of the bodies of one structure. Each line is a step:
// "2|AB|force|value|..." adds forces to body 2, "=2" copies those of the whole to it, "-3" takes row 3 away,
// "+3" repeats a row and
// "~" is its opposite, "^" keeps the forces and "v" brings them back, "?12|A" solves bodies 1 and 2 with a
// reference point. Only the documented failure leaves, forces stay on points of their body, numbers are
// finite, and what is found satisfies the equations.

#include <algorithm>
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

namespace {

using namespace tavrelo;
using fuzz::PiecesOf;
using fuzz::Require;
using namespace tavrelo::mechanics::rigid;

constexpr int kDecimals = 3;

void RequireFinite(std::optional<double> number) { Require(std::isfinite(number.value_or(0))); }

/// Two bars joined at B, and the whole.
RigidProblem TwoBars() {
    RigidProblem problem;
    for (const auto& [chain, vector] : {std::pair{"AB", "3,4"}, {"BC", "3,-4"}, {"AD", "h3"}})
        problem =
            std::get<StructureStep>(WithVectors(problem, {chain, vector, "", {}}, "A", kDecimals)).problem;
    problem = WithSystem(WithSystem(problem, 1, "ABCD"), 2, "AB");
    return WithSystem(problem, 3, "BC");
}

void RequireSound(const RigidProblem& problem) {
    for (const BodyForce& row : problem.forces) {
        Require(problem.LettersOfSystem(row.body).find(row.point) != std::string_view::npos);
        RequireFinite(row.x);
        RequireFinite(row.y);
        if (row.couple)
            RequireFinite(row.couple->value);
        if (!row.force)
            continue;
        RequireFinite(row.force->x.number);
        RequireFinite(row.force->y.number);
        RequireFinite(row.force->magnitude);
        RequireFinite(row.force->direction);
    }
}

/// The number behind the first character; 0 for none.
int NumberIn(const std::string& line) { return std::atoi(line.substr(1, 2).c_str()); }

RigidProblem WithEntry(const RigidProblem& problem, const std::string& line) {
    std::vector<std::string> pieces = PiecesOf(line, '|');
    constexpr std::size_t kValues = 3;  // the pieces from here on
    pieces.resize(std::max(pieces.size(), kValues));
    const int body = pieces[0].size() == 1 && pieces[0] >= "1" && pieces[0] <= "5" ? pieces[0][0] - '0' : 1;
    ReadRowReference(pieces[2]);
    CheckSeries(pieces[2]);
    CheckForcePoints(problem, body, pieces[1]);
    if (pieces[2].empty())
        return problem;
    const auto outcome =
        WithForces(problem, {body, pieces[1], pieces[2], std::span(pieces).subspan(kValues)}, kDecimals);
    const auto* step = std::get_if<ForceStep>(&outcome);
    if (!step)
        return problem;
    Require(step->problem.forces.size() == problem.forces.size() + step->written.size());
    return step->problem;
}

RigidProblem WithRowAgain(const RigidProblem& problem, const std::string& line) {
    const auto row = static_cast<std::size_t>(NumberIn(line)) - 1;
    if (row >= problem.forces.size())
        return problem;
    const BodyForce& force = problem.forces[row];
    std::string text = force.text;
    if (line[0] == '~') {
        auto opposite = NegateForceText(text);
        if (!std::holds_alternative<std::string>(opposite))
            return problem;
        text = std::get<std::string>(opposite);
    }
    return WithEntry(problem, std::to_string(force.body) + "|" + force.point + "|" + text);
}

BodyResults ResultsOf(const BodyOutcome& outcome) {
    if (const auto* choice = std::get_if<BodyChoice>(&outcome)) {
        tools::rigid::QuestionBetween(*choice, kDecimals);
        return choice->front();
    }
    const auto* only = std::get_if<BodyResults>(&outcome);
    return only ? *only : BodyResults{};
}

RigidProblem Solved(const RigidProblem& problem, const std::string& line) {
    const std::vector<std::string> pieces = PiecesOf(line, '|');
    std::vector<BodyRequest> requests;
    for (const char digit : pieces[0])
        if (digit >= '1' && digit <= '0' + kSystems)
            requests.push_back({digit - '0', pieces.size() > 1 ? pieces[1] : "A"});
    const auto chosen = ChooseBodies(problem, requests);
    const auto* bodies = std::get_if<std::vector<ChosenBody>>(&chosen);
    if (!bodies)
        return problem;
    const auto built = BuildEquations(problem.forces, *bodies, pieces.size() > 2 ? pieces[2] : "");
    const auto* equations = std::get_if<BodyEquations>(&built);
    if (!equations || CheckAngles(*equations, bodies->size()))
        return problem;
    tools::rigid::EquilibriumReport(*bodies, *equations, {}, kDecimals);
    const BodyResults results = ResultsOf(SolveEquations(*equations, bodies->size()));
    if (results.empty())
        return problem;
    Require(HoldsWith(*equations, results));
    tools::rigid::EquilibriumReport(*bodies, *equations, results, kDecimals);
    RigidProblem solved = problem;
    solved.forces = WithResults(problem.forces, results);
    return solved;
}

RigidProblem After(const RigidProblem& problem, const std::string& line) {
    switch (line.empty() ? '\0' : line[0]) {
        case '=': {
            const int body = NumberIn(line);
            return body < 2 || body > kSystems ? problem
                                               : WithCopies(problem, ForcesToCopy(problem, body), body);
        }
        case '-': {
            const auto row = static_cast<std::size_t>(NumberIn(line)) - 1;
            return row < problem.forces.size() ? WithoutForce(problem, row) : problem;
        }
        case '+':
        case '~':
            return WithRowAgain(problem, line);
        case '^':
            return WithBackup(problem);
        case 'v':
            return Restored(problem);
        case '?':
            return Solved(problem, line);
        default:
            return WithEntry(problem, line);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const RigidProblem kStart = TwoBars();
    constexpr std::size_t kMostForces = 40;  // more only take time
    RigidProblem problem = kStart;
    for (const std::string& line : PiecesOf({reinterpret_cast<const char*>(data), size}, '\n')) {
        if (problem.forces.size() > kMostForces)
            break;
        try {
            problem = After(problem, line);
        } catch (const numeric::RuntimeFailure&) {
            continue;
        }
        RequireSound(problem);
    }
    return 0;
}
