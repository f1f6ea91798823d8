#include "mechanics/rigid/force_steps.h"

#include <algorithm>
#include <utility>

#include "numeric/checked.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr int kWhole = 1;  // the system of all points
constexpr std::size_t kMostPoints = 6;
constexpr const char* kNoPoint = "No existe el punto dado.";
constexpr const char* kNoSeries = "Serie de fuerzas sólo para formatos \"hCx\" o \"vCy\".";

bool Holds(std::string_view letters, std::string_view letter) {
    return letters.find(letter) != std::string_view::npos;
}

// What is wrong with a chain of points as a text.
std::optional<text::Refusal> CheckLetters(std::string_view points) {
    if (text::CharacterCount(points) > kMostPoints)
        return text::Refusal{"Cadena de máximo 6 letras."};
    if (!std::ranges::all_of(points, [](char letter) { return letter >= 'A' && letter <= 'Z'; }))
        return text::Refusal{"Los puntos se denotan con letras."};
    if (HasRepeated(points))
        return text::Refusal{"Hay un punto repetido."};
    return {};
}

std::optional<text::Refusal> CheckPoint(const RigidProblem& problem, int body, const std::string& point) {
    if (!Holds(problem.LettersOfSystem(kWhole), point))
        return text::Refusal{"El punto " + point + " no pertenece a ningún cuerpo."};
    if (!Holds(problem.LettersOfSystem(body), point))
        return text::Refusal{"El punto " + point + " no pertenece al cuerpo " + std::to_string(body)};
    return {};
}

// Whether all of the points have coordinates, and there is one.
bool Exist(const RigidProblem& problem, const std::vector<std::string>& points) {
    const auto exists = [&](const std::string& point) {
        return FindPoint(problem.structure.points, point) != nullptr;
    };
    return !points.empty() && std::ranges::all_of(points, exists);
}

// The text of the force on a point: as typed on the first one, a further value of the series on the others.
std::string ForceTextAt(const ForceEntry& entry, std::size_t place) {
    if (place == 0)
        return entry.force;
    const std::string value = place <= entry.values.size() ? text::Trim(entry.values[place - 1]) : "";
    return value.empty() ? "" : SeriesText(entry.force, value);
}

// Appends the force that is typed for a point; an empty text gives its point no force.
std::optional<text::Refusal> AddForceAt(ForceStep& step, const ForceEntry& entry, std::size_t place,
                                        const PointRecord& point, int decimals) {
    const std::string text = ForceTextAt(entry, place);
    if (text.empty())
        return {};
    if (place > 0)
        if (auto refusal = CheckSeries(entry.force))
            return refusal;
    auto read = ReadBodyForce(entry.body, point, text, decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    auto& [force, written] = std::get<ReadForce>(read);
    step.problem.forces.push_back(std::move(force));
    step.written.push_back(std::move(written));
    return {};
}

}  // namespace

std::optional<text::Refusal> CheckForcePoints(const RigidProblem& problem, int body,
                                              std::string_view points) {
    if (auto refusal = CheckLetters(points))
        return refusal;
    for (const std::string& point : LettersOf(points))
        if (auto refusal = CheckPoint(problem, body, point))
            return refusal;
    return {};
}

std::optional<text::Refusal> CheckSeries(std::string_view force) {
    if (force.starts_with('h') || force.starts_with('v'))
        return {};
    return text::Refusal{kNoSeries};
}

std::variant<ForceRefusal, ForceStep> WithForces(const RigidProblem& problem, const ForceEntry& entry,
                                                 int decimals) {
    const std::vector<std::string> points = LettersOf(entry.points);
    if (!Exist(problem, points))
        return ForceRefusal{{kNoPoint}, {}};
    if (auto refusal = CheckForcePoints(problem, entry.body, entry.points))
        return ForceRefusal{*std::move(refusal), {}};
    ForceStep step{problem, {}};
    for (std::size_t place = 0; place < points.size(); ++place) {
        const PointRecord& point = *FindPoint(problem.structure.points, points[place]);
        if (auto refusal = AddForceAt(step, entry, place, point, decimals))
            return ForceRefusal{*std::move(refusal), place};
    }
    return step;
}

std::vector<std::size_t> ForcesToCopy(const RigidProblem& problem, int body) {
    const auto has = [&](const BodyForce& force) {
        return std::ranges::any_of(problem.forces, [&](const BodyForce& own) {
            return own.body == body && own.point == force.point && own.text == force.text;
        });
    };
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < problem.forces.size(); ++row)
        if (const BodyForce& force = problem.forces[row];
            force.body == kWhole && Holds(problem.LettersOfSystem(body), force.point) && !has(force))
            rows.push_back(row);
    return rows;
}

RigidProblem WithCopies(const RigidProblem& problem, std::span<const std::size_t> rows, int body) {
    RigidProblem longer = problem;
    for (const std::size_t row : rows) {
        longer.forces.push_back(problem.forces[row]);
        longer.forces.back().body = body;
    }
    return longer;
}

RigidProblem WithoutForce(RigidProblem problem, std::size_t row) {
    if (row < problem.forces.size())
        problem.forces.erase(problem.forces.begin() + static_cast<std::ptrdiff_t>(row));
    return problem;
}

std::variant<ReferenceRefusal, std::vector<ChosenBody>> ChooseBodies(const RigidProblem& problem,
                                                                     std::span<const BodyRequest> requests) {
    if (requests.empty())
        return ReferenceRefusal{{"No hay sistemas seleccionados en la lista."}, 0};
    std::vector<ChosenBody> bodies;
    for (const auto& [body, reference] : requests) {
        const PointRecord* point = FindPoint(problem.structure.points, reference);
        if (!point)
            return ReferenceRefusal{{"El punto de referencia " + reference + " del sistema " +
                                     std::to_string(body) + " no existe."},
                                    body};
        const bool is_particle = LettersOf(problem.LettersOfSystem(body)).size() == 1;
        bodies.push_back({body, is_particle, point->x, point->y});
    }
    return bodies;
}

RigidProblem WithBackup(RigidProblem problem) {
    problem.backup = problem.forces;
    return problem;
}

RigidProblem Restored(RigidProblem problem) {
    if (!problem.backup.empty())
        problem.forces = AtPoints(problem.backup, problem.structure.points);
    return problem;
}

}  // namespace tavrelo::mechanics::rigid
