// The procedures that a click on the label of a point runs.

#include <array>
#include <string>
#include <utility>

#include "mechanics/projectile/parameter_procedures.h"
#include "mechanics/projectile/planting.h"
#include "mechanics/projectile/point_click.h"
#include "mechanics/projectile/point_substitution.h"
#include "mechanics/projectile/procedures.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

constexpr const char* kOnlyPointZero = "Debes basar las ecuaciones siempre en el punto 0.";
constexpr const char* kNoEquations = "No tengo las ecuaciones del móvil ";

// Planting.

Step Plant(const Click& click) {
    if (click.place.point != 0)
        return text::Refusal{kOnlyPointZero};
    const PointCells& cells = click.cells;
    Launch launch = {cells.mode, std::nullopt, cells.first, cells.second};
    if (cells.t && cells.x && cells.y)
        launch.start = {*cells.t, *cells.x, *cells.y};
    return PlantInto(click.problem, click.place.mover, launch, click.decimals);
}

// Substitution in complete equations.

/// Increments of time and height from one and the same point.
std::optional<PointDatum> IncrementsOf(const PointCells& cells) {
    const auto& time = cells.time_reference;
    const auto& height = cells.height_reference;
    if (!time || !height || time->point != height->point || !time->addend || !height->addend)
        return std::nullopt;
    return PointDatum{Datum::Increments, 0.0, *time->addend, *height->addend};
}

/// The datum that counts, in the order in which they are looked for.
std::optional<PointDatum> DatumOf(const PointCells& cells) {
    const bool polar = cells.mode == SpeedMode::Polar;
    struct Row {
        const std::optional<double>* number;
        bool applies;
        Datum datum;
    };
    const std::array<Row, 6> rows = {{{&cells.t, true, Datum::Time},
                                      {&cells.x, true, Datum::X},
                                      {&cells.y, true, Datum::Y},
                                      {&cells.second, !polar, Datum::Vy},
                                      {&cells.first, polar, Datum::Speed},
                                      {&cells.second, polar, Datum::Angle}}};
    for (const Row& row : rows)
        if (row.applies && *row.number)
            return PointDatum{row.datum, **row.number, 0.0, 0.0};
    return IncrementsOf(cells);
}

std::string SubstitutionHeader(const Click& click, const PointDatum& datum) {
    std::string header = "Sustituir en las ecuaciones del móvil " + click.MoverText();
    if (datum.datum == Datum::Increments)
        header += ": ;Dt = " + Shown(datum.time_increment, click.decimals) + " y ;D" +
                  std::string(SymbolsOf(click.place.mover).y) + " = " +
                  Shown(datum.height_increment, click.decimals) + ".";
    return header;
}

void AddState(std::vector<std::string>& lines, const Click& click, int point, const State& state) {
    for (std::string& line : StateLines(click.place.mover, point, state, click.cells.mode, click.decimals))
        lines.push_back(std::move(line));
}

/// The point at which an interval begins, given its end; in the table too when it is a point of the mover.
void AddIntervalStart(Outcome& outcome, std::vector<std::string>& lines, const Click& click, const State& end,
                      const PointDatum& datum) {
    const int point = click.cells.time_reference->point;
    const State start = StateAt(click.TheEquations().flight, end.t - datum.time_increment);
    AddState(lines, click, point, start);
    if (outcome.problem.HasPoint(click.place.mover, point))
        PutPoint(outcome.problem, outcome.problem.ColumnOf(click.place.mover, point), start, click.decimals);
}

Question AskWhichState(const Click& click, const std::vector<State>& states) {
    const auto time = [&](const State& state) { return text::RoundedText(state.t, click.decimals); };
    return {Buttons::YesNo,
            "En  t =  " + time(states[0]) + "  y  t =  " + time(states[1]) +
                "\nPara pasar la primera solución a la tabla oprime el botón \"Sí\".\nPara pasar la solución "
                "alternativa oprime \"No\".",
            PutPointRequest{click.column, states[0]}, PutPointRequest{click.column, states[1]}};
}

Step Substitute(const Click& click) {
    if (!click.TheEquations().IsComplete())
        return text::Refusal{kNoEquations + click.MoverText()};
    const auto datum = DatumOf(click.cells);
    if (!datum)
        return text::Refusal{kWrongData};
    const auto found = StatesWith(click.TheEquations().flight, *datum);
    if (const auto* refusal = std::get_if<text::Refusal>(&found))
        return *refusal;
    const auto& states = std::get<std::vector<State>>(found);
    Outcome outcome = {click.problem, {}};
    std::vector<std::string> lines = {SubstitutionHeader(click, *datum)};
    if (datum->datum == Datum::Increments)
        AddIntervalStart(outcome, lines, click, states.front(), *datum);
    AddState(lines, click, click.place.point, states.front());
    if (states.size() == 1) {
        PutPoint(outcome.problem, click.column, states.front(), click.decimals);
        outcome.events = {WriteLines{lines}};
        return outcome;
    }
    lines.emplace_back(kOr);
    AddState(lines, click, click.place.point, states[1]);
    outcome.events = {WriteLines{lines}, AskWhichState(click, states)};
    return outcome;
}

}  // namespace

Step ClickPoint(const Problem& problem, Procedure procedure, const Place& place, int decimals) {
    if (!problem.configuration.IsConfigured())
        return text::Refusal{kConfigureFirst};
    const int column = problem.ColumnOf(place.mover, place.point);
    const auto cells = ReadPoint(problem, column);
    if (const auto* refusal = std::get_if<text::Refusal>(&cells))
        return *refusal;
    const Click click = {problem, place, column, std::get<PointCells>(cells), decimals};
    switch (procedure) {
        case Procedure::Plant:
            return Plant(click);
        case Procedure::Substitute:
            return Substitute(click);
        case Procedure::SubstituteInPolar:
            return SubstituteInPolar(click);
        case Procedure::SubstituteInComponents:
            return SubstituteInComponents(click);
        case Procedure::PathAndGraph:
            break;
    }
    return Outcome{problem, {}};
}

}  // namespace tavrelo::mechanics::projectile
