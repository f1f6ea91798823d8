#include "tools/rigid/describe.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "drawing/force_words.h"
#include "drawing/words.h"
#include "text/number_text.h"

namespace tavrelo::tools::rigid {
namespace {

using drawing::NumberWords;
using mechanics::rigid::BodyForce;
using mechanics::rigid::Couple;
using mechanics::rigid::kSystems;
using mechanics::rigid::LettersOf;
using mechanics::rigid::LineRow;
using mechanics::rigid::RigidProblem;

constexpr drawing::Noun kPoints{"punto", "puntos"};
constexpr drawing::Noun kForces{"fuerza", "fuerzas", true};
constexpr drawing::Noun kCouples{"par", "pares"};

std::string Letters(std::string_view chain) { return drawing::Listed(LettersOf(chain)); }

std::string PointWords(const RigidProblem& problem, int decimals) {
    const auto& [segments, points, origin] = problem.structure;
    std::vector<std::string> told;
    for (const auto& point : points)
        told.push_back(point.name + " en " + drawing::PlaceWords(point.x, point.y, decimals));
    std::string words = "Estructura de " + drawing::Counted(points.size(), kPoints);
    if (!origin.empty())
        words += ", con origen en " + origin;
    return words + ": " + drawing::ListedAtLength(told) + ".";
}

/// The first system is the whole.
std::string SystemWords(const RigidProblem& problem) {
    std::string words;
    for (int system = 2; system <= kSystems; ++system)
        if (problem.IsDefined(system))
            words +=
                " Sistema " + std::to_string(system) + ": " + Letters(problem.LettersOfSystem(system)) + ".";
    return words;
}

bool HasShown(const DiagramView& view) { return std::ranges::find(view.shown, true) != view.shown.end(); }

std::string LineWords(const RigidScene& scene) {
    std::string words;
    for (const LineRow& line : scene.problem.lines)
        if (!HasShown(scene.view) || scene.view.IsShown(line.system))
            words += " " + DescribeLine(line);
    return words;
}

std::string TurnWords(double sign) { return sign >= 0 ? "en sentido antihorario" : "en sentido horario"; }

std::string CoupleWords(const Couple& couple, int decimals) {
    if (!couple.IsKnown())
        return "par " + couple.symbol + " " + TurnWords(couple.sign) + ", desconocido";
    const std::string size = NumberWords(std::abs(*couple.value), decimals) + " " + TurnWords(*couple.value);
    return couple.symbol.empty() ? "par " + size : "par " + couple.symbol + ": " + size + ", hallado";
}

/// While one component is unknown, a force that was given by them is drawn as two arrows.
bool IsDrawnByComponents(const notation::Force& force, const ForceLook& look) {
    return !force.HasComponents() && !force.x.unknown.HasAngle() && (look.by_components || !look.clock);
}

std::string WholeForceWords(const notation::Force& force, const ForceLook& look, int decimals) {
    const bool is_named = force.knowledge != notation::Knowledge::Given && !text::IsNum(look.label);
    drawing::ToldForce told{
        force, is_named ? drawing::LabelWords(look.label) : std::string(), look.leaves, {}};
    if (force.x.unknown.HasAngle() && !force.HasComponents())
        told.drawn_direction = look.asked_direction.value_or(kDefaultDirection);
    return drawing::ForceWords(told, decimals);
}

std::string ForceOfRow(const notation::Force& force, const ForceLook& look, int decimals) {
    if (!IsDrawnByComponents(force, look))
        return WholeForceWords(force, look, decimals);
    // The arrows along the axes tell the words of ForceWords in two.
    return drawing::ForceWords({force, drawing::NameWords(force), look.leaves, {}}, decimals);
}

/// The rows that act on a body, at points that the picture has.
std::vector<std::size_t> RowsOf(const RigidScene& scene, int body) {
    std::vector<std::size_t> rows;
    const std::size_t count = std::min(scene.problem.forces.size(), scene.view.looks.size());
    for (std::size_t row = 0; row < count; ++row) {
        const BodyForce& force = scene.problem.forces[row];
        if (force.body == body && mechanics::rigid::FindPoint(scene.problem.structure.points, force.point))
            rows.push_back(row);
    }
    return rows;
}

std::string CountWords(const RigidScene& scene, const std::vector<std::size_t>& rows) {
    const auto count = [&](auto has) {
        return static_cast<std::size_t>(
            std::ranges::count_if(rows, [&](std::size_t row) { return has(scene.problem.forces[row]); }));
    };
    const std::size_t forces = count([](const BodyForce& row) { return row.force.has_value(); });
    const std::size_t couples = count([](const BodyForce& row) { return row.couple.has_value(); });
    std::vector<std::string> counts;
    if (forces > 0)
        counts.push_back(drawing::Counted(forces, kForces));
    if (couples > 0)
        counts.push_back(drawing::Counted(couples, kCouples));
    return drawing::AsSentence(drawing::Listed(counts));
}

std::string BodyWords(const RigidScene& scene, int body) {
    std::string words = " Diagrama de cuerpo libre del sistema " + std::to_string(body) + ".";
    const std::vector<std::size_t> rows = RowsOf(scene, body);
    if (rows.empty())
        return words + " Sin fuerzas.";
    std::vector<std::string> told;
    for (const std::size_t row : rows)
        told.push_back(DescribeBodyForce(scene, row));
    return words + " " + CountWords(scene, rows) + ": " + drawing::ListedAtLength(told) + ".";
}

}  // namespace

std::string DescribeLine(const LineRow& line) {
    return "Línea del sistema " + std::to_string(line.system) + ": " + Letters(line.chain) + ".";
}

std::string DescribeBodyForce(const RigidScene& scene, std::size_t row) {
    const BodyForce& force = scene.problem.forces[row];
    std::string words = "en " + force.point;
    if (force.force)
        words += ", " + ForceOfRow(*force.force, scene.view.looks[row], scene.decimals);
    if (force.couple)
        words += ", " + CoupleWords(*force.couple, scene.decimals);
    return words;
}

std::string DescribeScene(const RigidScene& scene) {
    if (scene.problem.structure.points.empty())
        return "Sin puntos.";
    std::string words =
        PointWords(scene.problem, scene.decimals) + SystemWords(scene.problem) + LineWords(scene);
    for (int body = 1; body <= kSystems; ++body)
        if (scene.view.IsShown(body))
            words += BodyWords(scene, body);
    return words;
}

}  // namespace tavrelo::tools::rigid
