#include "mechanics/rigid/structure_steps.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "mechanics/rigid/structure_changes.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr int kWhole = 1;  // the system of all points

std::string& SystemOf(RigidProblem& problem, int system) {
    if (system < 1 || system > kSystems)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "system of points");
    return problem.systems[static_cast<std::size_t>(system) - 1];
}

std::string Joined(const std::vector<std::string>& letters) {
    std::string text;
    for (const std::string& letter : letters)
        text += letter;
    return text;
}

// The letters of a text that are in `kept`, in their order.
std::string Remaining(std::string_view text, const std::vector<std::string>& kept) {
    std::string remaining;
    for (const std::string& letter : LettersOf(text))
        if (std::ranges::find(kept, letter) != kept.end())
            remaining += letter;
    return remaining;
}

// Puts a structure in the place of the problem's own; the whole is all its letters.
RigidProblem WithStructure(RigidProblem problem, Structure structure) {
    problem.structure = std::move(structure);
    problem.forces = AtPoints(std::move(problem.forces), problem.structure.points);
    SystemOf(problem, kWhole) = Joined(LettersOf(problem.structure.segments));
    return problem;
}

StructureStep WithStructureSeenFrom(const RigidProblem& problem, Structure structure,
                                    std::string_view origin) {
    auto seen = SeenFrom(structure.points, origin);
    if (const auto* refusal = std::get_if<text::Refusal>(&seen))
        return {WithStructure(problem, std::move(structure)), *refusal};
    structure.points = std::get<PointTable>(std::move(seen));
    structure.origin = origin;
    return {WithStructure(problem, std::move(structure)), {}};
}

void ForgetLostLetters(RigidProblem& problem) {
    const std::vector<std::string> letters = LettersOf(problem.structure.segments);
    for (std::string& system : problem.systems)
        system = Remaining(system, letters);
    std::erase_if(problem.lines,
                  [&](const LineRow& line) { return Remaining(line.chain, letters) != line.chain; });
}

}  // namespace

std::variant<ChainRefusal, StructureStep> WithVectors(const RigidProblem& problem, const ChainEntry& entry,
                                                      std::string_view origin, int decimals) {
    auto extended = Extended(problem.structure, entry, decimals);
    if (auto* refusal = std::get_if<ChainRefusal>(&extended))
        return std::move(*refusal);
    auto& structure = std::get<Structure>(extended);
    const bool is_first = problem.structure.segments.empty();
    const std::string wanted = is_first ? structure.origin : std::string(origin);
    return WithStructureSeenFrom(problem, std::move(structure), wanted);
}

StructureStep WithoutLastVector(const RigidProblem& problem, std::string_view origin) {
    Structure shorter = Shortened(problem.structure);
    if (shorter.segments.empty())
        return {};
    const bool is_lost = shorter.origin != problem.structure.origin;
    const std::string wanted = is_lost ? shorter.origin : std::string(origin);
    StructureStep step = WithStructureSeenFrom(problem, std::move(shorter), wanted);
    step.problem.forces.clear();
    step.problem.backup.clear();
    ForgetLostLetters(step.problem);
    return step;
}

std::variant<text::Refusal, RigidProblem> WithOrigin(const RigidProblem& problem, std::string_view origin) {
    auto seen = SeenFrom(problem.structure.points, origin);
    if (const auto* refusal = std::get_if<text::Refusal>(&seen))
        return *refusal;
    RigidProblem moved = problem;
    moved.structure.points = std::get<PointTable>(std::move(seen));
    moved.structure.origin = origin;
    moved.forces = AtPoints(std::move(moved.forces), moved.structure.points);
    return moved;
}

RigidProblem WithSystem(RigidProblem problem, int system, std::string_view letters) {
    SystemOf(problem, system) = letters;
    return problem;
}

RigidProblem WithLine(RigidProblem problem, const LineCommand& command) {
    if (command.action == LineCommand::Action::Draw)
        problem.lines.push_back(command.line);
    if (command.action == LineCommand::Action::Cancel)
        std::erase(problem.lines, command.line);
    return problem;
}

}  // namespace tavrelo::mechanics::rigid
