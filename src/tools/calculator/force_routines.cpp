#include "tools/calculator/force_routines.h"

#include <algorithm>

#include "drawing/words.h"
#include "notation/clock_direction.h"
#include "text/number_text.h"
#include "tools/calculator/arrow_drawing.h"
#include "tools/calculator/graph_routines.h"
#include "tools/calculator/result_text.h"
#include "tools/calculator/vector_arguments.h"

namespace tavrelo::tools::calculator {
namespace {

using Lines = std::vector<std::string>;
using Vectors = std::vector<mechanics::forces::PlaneVector>;
using mechanics::forces::PlaneVector;
using mechanics::forces::ResultantKind;

constexpr std::string_view kNullSystem = "El sistema de fuerzas tiene resultante nula";
constexpr std::string_view kCouple = "La resultante es un par de momento ";

/// At least one pair of point and force; a further argument is the chosen point.
bool HasChosenPoint(int count) { return count % 2 != 0; }

void RequirePair(int count) {
    if (count < 2)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "no force");
}

std::string ForceName(std::size_t index) { return Subscripted("F", index + 1); }

// --- Parallel forces along a line --------------------------------------------------------------------------

Lines LineReport(const RoutineRun& run, const mechanics::forces::LineResultant& result) {
    if (result.kind == ResultantKind::Null)
        return {std::string(kNullSystem)};
    if (result.kind == ResultantKind::Couple)
        return {std::string(kCouple) + run.Bare(result.moment)};
    Lines lines = {"La resultante vale " + run.Bare(result.force),
                   "y se localiza en R = " + run.Bare(result.force) + ", x!R = " + run.Bare(result.x)};
    if (const int count = run.arguments.Count(); HasChosenPoint(count)) {
        const double x = run.arguments.Number(count - 1);
        lines.push_back("La resultante localizada en x = " + run.Bare(x));
        lines.emplace_back("consta de la fuerza R dada arriba");
        lines.push_back("y un par de momento " + run.Bare(mechanics::forces::MomentAt(result, x)));
    }
    return lines;
}

void DrawLineForces(RoutineRun& run, const std::vector<mechanics::forces::LineForce>& forces,
                    const mechanics::forces::LineResultant& result) {
    std::vector<DrawnVector> drawn;
    for (const auto& [x, force] : forces)
        drawn.push_back({0, force, ForceName(drawn.size()), kGivenColor, {x, 0}});
    if (result.kind == ResultantKind::Force)
        drawn.push_back({0, result.force, "R", kResultColor, {result.x, 0}});
    DrawAtPoints(run, drawn);
}

// --- Parallel forces in space ------------------------------------------------------------------------------

Lines SpaceReport(const RoutineRun& run, const mechanics::forces::SpaceResultant& result,
                  const PlaneVector* chosen) {
    const std::string moment = PointText(run, result.moment_x, result.moment_y);
    Lines lines = {";SF!z = " + run.Bare(result.force) + ",  ;S$M!O = " + moment};
    if (result.kind == ResultantKind::Null) {
        lines.push_back(std::string(kNullSystem) + ".");
    } else if (result.kind == ResultantKind::Couple) {
        lines.emplace_back("La suma de fuerzas es cero. La resultante es");
        lines.push_back("un par de momento $M = ;S$M!O = " + moment);
    } else {
        lines.push_back("Resultante: R!z = " + run.Bare(result.force) + ", ubicada en");
        lines.push_back("x!R = " + run.Bare(result.position.x) + ",  y!R = " + run.Bare(result.position.y));
        if (chosen) {
            const numeric::Point couple = mechanics::forces::MomentAt(result, {chosen->x, chosen->y});
            lines.push_back("Localizada en " + PointText(run, *chosen) + " es  R!z = " +
                            run.Bare(result.force) + "  y  $M = " + PointText(run, couple.x, couple.y));
        }
    }
    return lines;
}

void DrawSpaceForces(RoutineRun& run, const std::vector<mechanics::forces::VerticalForce>& forces,
                     const mechanics::forces::SpaceResultant& result) {
    std::vector<DrawnVector> drawn;
    for (const auto& [position, force] : forces)
        drawn.push_back({0, force, ForceName(drawn.size()), kGivenColor, position});
    if (result.kind == ResultantKind::Force)
        drawn.push_back({0, result.force, "R", kResultColor, result.position});
    DrawVerticalForces(run, drawn);
}

// --- Coplanar forces ---------------------------------------------------------------------------------------

std::string ActionLineText(const RoutineRun& run, const mechanics::forces::PlaneResultant& result) {
    const std::string title = "Línea de acción:  ";
    switch (result.line) {
        case mechanics::forces::ActionLine::Horizontal:
            return title + "y = " + run.Bare(result.y_intercept);
        case mechanics::forces::ActionLine::Vertical:
            return title + "x = " + run.Bare(result.x_intercept);
        case mechanics::forces::ActionLine::Oblique:
            break;
    }
    const double x_coef = text::RoundTo(result.force.y, run.decimals);
    const double y_coef = text::RoundTo(-result.force.x, run.decimals);
    const std::string x_term = text::TermText(false, false, x_coef, "x");
    return title + x_term + text::TermText(!x_term.empty(), false, y_coef, "y") + " = " +
           run.Bare(result.moment);
}

Lines PlaneReport(const RoutineRun& run, const mechanics::forces::PlaneResultant& result,
                  const PlaneVector* chosen) {
    Lines lines = {";SF!x = " + run.Bare(result.force.x) + ",  ;SF!y = " + run.Bare(result.force.y) +
                   ",  ;SM!O = " + run.Bare(result.moment)};
    if (result.kind == ResultantKind::Null) {
        lines.emplace_back(kNullSystem);
        return lines;
    }
    if (result.kind == ResultantKind::Couple) {
        lines.push_back(std::string(kCouple) + run.Bare(result.moment));
        return lines;
    }
    lines.push_back("Resultante: $R = " + VectorText(run, result.force));
    lines.push_back(ActionLineText(run, result));
    if (result.line == mechanics::forces::ActionLine::Oblique)
        lines.push_back("Intersecciones: x!R = " + run.Bare(result.x_intercept) +
                        ", y!R = " + run.Bare(result.y_intercept));
    if (chosen) {
        lines.push_back("La resultante localizada en " + PointText(run, *chosen));
        lines.push_back("es la fuerza $R y un par de momento " +
                        run.Bare(mechanics::forces::MomentAt(result, {chosen->x, chosen->y})));
    }
    return lines;
}

/// The point of the line of action that is nearest to the middle of the forces' points.
numeric::Point ResultantPoint(const std::vector<mechanics::forces::PlacedForce>& forces,
                              const mechanics::forces::PlaneResultant& result) {
    numeric::Point middle;
    for (const mechanics::forces::PlacedForce& placed : forces) {
        middle.x += placed.position.x / static_cast<double>(forces.size());
        middle.y += placed.position.y / static_cast<double>(forces.size());
    }
    const double size = result.force.x * result.force.x + result.force.y * result.force.y;
    const double shift = numeric::CheckedDivide(mechanics::forces::MomentAt(result, middle), size);
    return {middle.x + shift * result.force.y, middle.y - shift * result.force.x};
}

void DrawPlaneForces(RoutineRun& run, const std::vector<mechanics::forces::PlacedForce>& forces,
                     const mechanics::forces::PlaneResultant& result) {
    std::vector<DrawnVector> drawn;
    for (const auto& [position, force] : forces)
        drawn.push_back({force.x, force.y, ForceName(drawn.size()), kGivenColor, {position.x, position.y}});
    if (result.kind == ResultantKind::Force)
        drawn.push_back({result.force.x, result.force.y, "R", kResultColor, ResultantPoint(forces, result)});
    DrawAtPoints(run, drawn);
}

/// Numbers are couples; the vectors keep their order.
struct PlaneArguments {
    std::vector<double> couples;
    std::vector<int> vector_positions;
};

PlaneArguments SortPlaneArguments(const Arguments& arguments) {
    PlaneArguments sorted;
    for (int k = 0; k < arguments.Count(); ++k) {
        if (text::IsNum(arguments.At(k)))
            sorted.couples.push_back(arguments.Number(k));
        else
            sorted.vector_positions.push_back(k);
    }
    return sorted;
}

// --- Distributed load --------------------------------------------------------------------------------------

Lines LoadReport(const RoutineRun& run, const mechanics::forces::LineResultant& result) {
    Lines lines = {
        "Distribución de densidad f(x) = " + run.ShownFormula(),
        "entre x!1 = " + run.Bare(run.arguments.Number(0)) + " y x!2 = " + run.Bare(run.arguments.Number(1))};
    if (result.kind == ResultantKind::Null) {
        lines.emplace_back("La resultante es nula.");
    } else if (result.kind == ResultantKind::Couple) {
        lines.emplace_back("La fuerza total es cero. La resultante es un par");
        lines.push_back("de momento M!0 = " + run.Bare(result.moment));
    } else {
        lines.push_back("Momento c//r al origen: M!0 = " + run.Bare(result.moment));
        lines.push_back("Resultante: R = " + run.Bare(result.force) +
                        ", ubicada en x!R = " + run.Bare(result.x));
    }
    return lines;
}

/// The resultant over the graph of its density, at its place on the x axis; left out where that lies off the
/// picture.
void DrawLoadResultant(RoutineRun& run, const mechanics::forces::LineResultant& result, double first,
                       double last) {
    constexpr double kLength = 5.5;  // world units
    constexpr int kWidth = 2;        // pixels
    using drawing::DrawEng;
    if (result.kind != ResultantKind::Force)
        return;
    window::Surface& surface = run.Picture();
    const auto [low, high] = std::minmax(first, last);
    const double part = numeric::CheckedDivide(result.x - low, high - low);
    const double x = DrawEng::kGraphLeft + part * DrawEng::kGraphSize;
    if (x < 0 || x > surface.Width())
        return;
    const bool is_upward = result.force > 0;
    const double half_length = kLength * DrawEng::kPixPerUnit / 2;
    const double middle = surface.FromBottom(DrawEng::kGraphBottom + DrawEng::kGraphSize / 2);
    run.engine.MoveTo(surface, x, middle + (is_upward ? half_length : -half_length), 1);
    run.engine.DrawArrow(surface, {.length = kLength,
                                   .hour = is_upward ? notation::kHourUp : notation::kHourDown,
                                   .color = kResultColor,
                                   .label = "R",
                                   .width = kWidth});
    surface.Describe("Resultante R de la carga, " + std::string(is_upward ? "hacia arriba" : "hacia abajo") +
                     ", en x " + drawing::NumberWords(result.x, run.decimals) + ".");
}

}  // namespace

Outcome ParallelLine(RoutineRun& run) {
    const int count = run.arguments.Count();
    RequirePair(count);
    std::vector<mechanics::forces::LineForce> forces;
    for (int k = 0; k + 1 < count; k += 2)
        forces.push_back({run.arguments.Number(k), run.arguments.Number(k + 1)});
    const mechanics::forces::LineResultant result = mechanics::forces::ParallelLine(forces);
    const Lines lines = LineReport(run, result);
    DrawLineForces(run, forces, result);
    run.Report(lines);
    return std::nullopt;
}

Outcome ParallelSpace(RoutineRun& run) {
    const int count = run.arguments.Count();
    const ReadVectors read = VectorsFrom(run.arguments, 0, 2, count);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    RequirePair(count);
    const auto& points = std::get<Vectors>(read);
    std::vector<mechanics::forces::VerticalForce> forces;
    for (int k = 0; k + 1 < count; k += 2) {
        const PlaneVector& point = points[forces.size()];
        forces.push_back({{point.x, point.y}, run.arguments.Number(k + 1)});
    }
    const mechanics::forces::SpaceResultant result = mechanics::forces::ParallelSpace(forces);
    const Lines lines = SpaceReport(run, result, HasChosenPoint(count) ? &points.back() : nullptr);
    DrawSpaceForces(run, forces, result);
    run.Report(lines);
    return std::nullopt;
}

Outcome PlaneForces(RoutineRun& run) {
    const auto [couples, positions] = SortPlaneArguments(run.arguments);
    const ReadVectors read = VectorsAt(run.arguments, positions);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    std::vector<mechanics::forces::PlacedForce> forces;
    for (std::size_t k = 0; k + 1 < given.size(); k += 2)
        forces.push_back({given[k], given[k + 1]});
    if (forces.empty() && couples.empty())
        RequirePair(0);
    const bool has_chosen = given.size() % 2 != 0;
    const mechanics::forces::PlaneResultant result = mechanics::forces::PlaneForces(forces, couples);
    const Lines lines = PlaneReport(run, result, has_chosen ? &given.back() : nullptr);
    DrawPlaneForces(run, forces, result);
    run.Report(lines);
    return std::nullopt;
}

Outcome DistributedLoad(RoutineRun& run) {
    const double first = run.arguments.Number(0);
    const double last = run.arguments.Number(1);
    const auto density = [&](std::span<const double> at) { return run.At(at[0]); };
    const auto moment_density = [&](std::span<const double> at) {
        return numeric::CheckedMultiply(at[0], run.At(at[0]));
    };
    const auto result = mechanics::forces::DistributedLoad(density, moment_density, first, last);
    if (!result) {
        run.TellTooManySteps();
        return std::nullopt;
    }
    DrawFormula(run, first, last);
    DrawLoadResultant(run, *result, first, last);
    run.Report(LoadReport(run, *result));
    return std::nullopt;
}

Outcome ParticleEquilibrium(RoutineRun& run) {
    std::vector<std::string> texts;
    for (int k = 0; k < run.arguments.Count(); ++k)
        texts.push_back(run.arguments.Text(k));
    if (run.solve_particle)
        run.solve_particle(texts);
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
