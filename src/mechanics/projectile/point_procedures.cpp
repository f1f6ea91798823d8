// The procedures that a click on the label of a point runs.

#include <array>
#include <string>
#include <utility>

#include "mechanics/projectile/parameters.h"
#include "mechanics/projectile/planting.h"
#include "mechanics/projectile/point_substitution.h"
#include "mechanics/projectile/procedures.h"
#include "mechanics/projectile/quartic.h"
#include "mechanics/projectile/quartic_search.h"
#include "notation/cell_reference.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using notation::CellReference;

constexpr const char* kWrongData = "Datos incorrectos.";
constexpr const char* kOnlyPointZero = "Debes basar las ecuaciones siempre en el punto 0.";
constexpr const char* kNoEquations = "No tengo las ecuaciones del móvil ";
constexpr const char* kNoPolarParameter = "No tengo las ecuaciones con parámetros V0 y/o Theta.";
constexpr const char* kNoComponentParameter = "No tengo las ecuaciones con parámetros V0x y/o V0y.";
constexpr const char* kExactlyTwo =
    "Para aplicar este procedimiento deben ser exactamente 2 datos.\nSi tienes 3 datos descompónlos en dos "
    "parejas de 2 datos y\nobtén un sistema de 2 ecuaciones con 2 incógnitas.";
constexpr const char* kPolarModeNeeded = "Cambia el modo de datos de velocidad a \"md\".";

/// The column of a clicked point: its numbers, and time and height where they refer to another point.
struct PointCells {
    SpeedMode mode = SpeedMode::Polar;
    std::optional<double> t, x, y, first, second;
    std::optional<CellReference> time_reference, height_reference;

    int Count() const {
        int count = 0;
        for (const auto* each : {&t, &x, &y, &first, &second})
            count += each->has_value() ? 1 : 0;
        return count;
    }
    bool HasSpeedData() const { return first || second; }
};

/// The reference in a cell; nothing for a number and for an empty cell. Any other text is refused.
std::variant<text::Refusal, std::optional<CellReference>> ReadReference(const text::Value& stored) {
    const std::string content = stored.Text();
    if (content.empty() || text::IsNum(stored))
        return std::optional<CellReference>();
    auto reference = notation::ParseCellReference(content);
    if (!reference)
        return text::Refusal{"Error en el dato " + content};
    return reference;
}

std::variant<text::Refusal, PointCells> ReadPoint(const Problem& problem, int column) {
    PointCells cells;
    cells.mode = problem.ModeOf(column);
    for (const auto& [row, reference] : {std::pair{points::kLaunchTimeRow, &cells.time_reference},
                                         std::pair{points::kHeightRow, &cells.height_reference}}) {
        auto read = ReadReference(problem.table.Stored(row, column));
        if (auto* refusal = std::get_if<text::Refusal>(&read))
            return *refusal;
        *reference = std::get<std::optional<CellReference>>(read);
    }
    cells.t = problem.NumberAt(points::kLaunchTimeRow, column);
    cells.x = problem.NumberAt(points::kAcrossRow, column);
    cells.y = problem.NumberAt(points::kHeightRow, column);
    cells.first = problem.NumberAt(points::kMagnitudeRow, column);
    cells.second = problem.NumberAt(points::kDirectionRow, column);
    return cells;
}

/// What a click is about.
struct Click {
    const Problem& problem;
    Place place;
    int column;
    const PointCells& cells;
    int decimals;

    const Equations& TheEquations() const { return problem.EquationsOf(place.mover); }
    std::string MoverText() const { return std::to_string(place.mover); }
};

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

// Substitution in equations with parameters.

std::string V0Plain(int mover, const char* axis = "") { return std::string(SymbolsOf(mover).v) + "0" + axis; }

std::string DataTitle(const Click& click, const std::string& what) {
    return "Calcular " + what + " del móvil " + click.MoverText() + ", con los datos:";
}

/// A report, and the question whether to plant with one of the values.
Step Offer(const Click& click, std::vector<std::string> report, const std::vector<Launch>& launches,
           const std::string& question) {
    return Outcome{
        click.problem,
        {WriteLines{std::move(report)}, AskToPlant(click.place.mover, launches, question, Buttons::YesNo)}};
}

std::vector<Launch> LaunchesWith(const Launch& launch, std::optional<double> Launch::*parameter,
                                 const std::vector<double>& values) {
    std::vector<Launch> launches;
    for (const double value : values) {
        launches.push_back(launch);
        launches.back().*parameter = value;
    }
    return launches;
}

std::string Joined(const std::vector<double>& values, const char* between, int decimals) {
    std::string joined;
    for (const double value : values)
        joined += (joined.empty() ? "" : between) + Shown(value, decimals);
    return joined;
}

Step FindSpeed(const Click& click, const PairData& data) {
    const Launch& launch = click.TheEquations().launch;
    const ParameterValues found = SpeedsFor(launch, data);
    if (const auto* refusal = std::get_if<text::Refusal>(&found))
        return *refusal;
    const auto& values = std::get<std::vector<double>>(found);
    const int mover = click.place.mover;
    const std::string v0 = SymbolsOf(mover).InitialSpeed();
    return Offer(click,
                 {DataTitle(click, "la " + v0), PairText(mover, click.place.point, data, click.decimals),
                  v0 + " = " + Joined(values, "  o  ", click.decimals)},
                 LaunchesWith(launch, &Launch::first, values), SpeedQuestion(V0Plain(mover), values));
}

std::string AnglesLine(const std::vector<double>& values, int decimals) {
    if (values.size() == 1)
        return ";q!0 = " + Shown(values[0], decimals) + "°";
    return ";q!0!1 = " + Shown(values[0], decimals) + "°, ;q!0!2 = " + Shown(values[1], decimals) + "°";
}

Step FindAngle(const Click& click, const PairData& data) {
    const Launch& launch = click.TheEquations().launch;
    const ParameterValues found = AnglesFor(launch, data);
    if (const auto* refusal = std::get_if<text::Refusal>(&found))
        return *refusal;
    const auto& values = std::get<std::vector<double>>(found);
    return Offer(click,
                 {DataTitle(click, "el ángulo de lanzamiento"),
                  PairText(click.place.mover, click.place.point, data, click.decimals),
                  AnglesLine(values, click.decimals)},
                 LaunchesWith(launch, &Launch::second, values), AngleQuestion(values, click.decimals));
}

Step StateRelation(const Click& click, const PairData& data) {
    auto lines = RelationsFor(click.place.mover, click.TheEquations().launch, data, click.decimals);
    if (auto* refusal = std::get_if<text::Refusal>(&lines))
        return *refusal;
    return Outcome{click.problem, {WriteLines{std::get<std::vector<std::string>>(lines)}}};
}

std::optional<PairData> PairIn(const PointCells& cells) {
    return PairOf(cells.t, cells.x, cells.y, cells.first, cells.second);
}

Step SubstituteInPolar(const Click& click) {
    const LaunchKind kind = click.TheEquations().kind;
    if (kind != LaunchKind::UnknownSpeed && kind != LaunchKind::UnknownAngle &&
        kind != LaunchKind::UnknownSpeedAndAngle)
        return text::Refusal{kNoPolarParameter};
    if (click.cells.Count() != 2)
        return text::Refusal{kExactlyTwo};
    if (click.cells.mode == SpeedMode::Components && click.cells.HasSpeedData())
        return text::Refusal{kPolarModeNeeded};
    const auto data = PairIn(click.cells);
    if (!data)
        return text::Refusal{kWrongData};
    if (kind == LaunchKind::UnknownSpeed)
        return FindSpeed(click, *data);
    return kind == LaunchKind::UnknownAngle ? FindAngle(click, *data) : StateRelation(click, *data);
}

/// "v!0!x = 3", and the speed and angle that it makes.
void AddComponent(std::vector<std::string>& lines, int mover, const std::string& name, double value,
                  const Launch& launch, int decimals) {
    const PolarVelocity velocity = Polar(Velocity{*launch.first, *launch.second});
    lines.push_back(name + " = " + Shown(value, decimals));
    lines.push_back(SymbolsOf(mover).InitialSpeed() + " =  " + Shown(velocity.speed, decimals) +
                    " y ;q = " + Shown(velocity.angle, decimals) + "°");
}

/// The rest of a search for a component: report and question.
Step OfferComponents(const Click& click, const PairData& data, const ParameterValues& found,
                     std::optional<double> Launch::*parameter) {
    if (const auto* refusal = std::get_if<text::Refusal>(&found))
        return *refusal;
    const auto& values = std::get<std::vector<double>>(found);
    const int mover = click.place.mover;
    const bool is_x = parameter == &Launch::first;
    const std::string name = is_x ? SymbolsOf(mover).InitialVx() : SymbolsOf(mover).InitialVy();
    const auto launches = LaunchesWith(click.TheEquations().launch, parameter, values);
    std::vector<std::string> report = {DataTitle(click, "la " + name),
                                       PairText(mover, click.place.point, data, click.decimals)};
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            report.emplace_back(kOr);
        AddComponent(report, mover, name, values[i], launches[i], click.decimals);
    }
    return Offer(click, std::move(report), launches,
                 ComponentQuestion(V0Plain(mover, is_x ? "x" : "y"), values));
}

Step AskQuarticLimit(const Click& click, const PairData& data) {
    const Launch& launch = click.TheEquations().launch;
    const auto quartic = QuarticFor(launch, data);
    if (const auto* refusal = std::get_if<text::Refusal>(&quartic))
        return *refusal;
    const std::string v0x = V0Plain(click.place.mover, "x");
    return Outcome{click.problem,
                   {AskLimit{kLimitTitle,
                             "Resulta una ecuación cuártica para " + v0x +
                                 ".\nSe buscará una solución para la velocidad " + v0x +
                                 "\ncomprendida entre 0 y el valor que especifiques aquí.",
                             QuarticSearch{click.place, launch, data}}}};
}

Step SubstituteInComponents(const Click& click) {
    const LaunchKind kind = click.TheEquations().kind;
    if (kind != LaunchKind::UnknownVx && kind != LaunchKind::UnknownVy)
        return text::Refusal{kNoComponentParameter};
    if (click.cells.mode == SpeedMode::Components && click.cells.HasSpeedData())
        return text::Refusal{kPolarModeNeeded};
    const auto data = PairIn(click.cells);
    if (!data)
        return text::Refusal{kWrongData};
    const Launch& launch = click.TheEquations().launch;
    if (kind == LaunchKind::UnknownVy)
        return OfferComponents(click, *data,
                               VerticalSpeedsFor(click.place.mover, launch, *data, click.decimals),
                               &Launch::second);
    if (data->pair == Pair::XSpeed)
        return AskQuarticLimit(click, *data);
    return OfferComponents(
        click, *data, HorizontalSpeedsFor(click.place.mover, launch, *data, click.decimals), &Launch::first);
}

// The end of the search for v0x.

constexpr const char* kFormulaInserted =
    "Se insertó el polinomio en la casilla de la calculadora por si deseas buscar otras raíces.";
constexpr const char* kNoRoots =
    "No encontré raíces en el intervalo dado. Si deseas modificar el intervalo de búsqueda, usa la rutina "
    "\"Calcular raíces\" de la calculadora .\nYa se insertó el polinomio en el cuadro de expresiones.";

std::vector<std::string> QuarticReport(const QuarticSearch& search, const Quartic& quartic,
                                       const std::vector<double>& roots, int decimals) {
    const int mover = search.place.mover;
    const std::string name = SymbolsOf(mover).InitialVx();
    std::vector<std::string> report = {
        "Calcular la " + name + " del móvil " + std::to_string(mover) + ", con los datos:",
        PairText(mover, search.place.point, search.data, decimals),
        "El problema planteado da lugar a la siguiente ecuación para " + name + ":",
        ForReport(EquationOf(quartic, mover, decimals)), "Se hallaron estas raíces:"};
    for (const double root : roots) {
        report.push_back(name + " = " + Shown(root, decimals));
        report.push_back("El polinomio en " + name + " vale " + Shown(quartic(root), decimals) + " allí.");
    }
    return report;
}

}  // namespace

Step SearchQuartic(const Problem& problem, const QuarticSearch& search, std::string_view typed,
                   int decimals) {
    const auto limit = ReadLimit(typed);
    if (const auto* refusal = std::get_if<text::Refusal>(&limit))
        return *refusal;
    const Quartic quartic = std::get<Quartic>(QuarticFor(search.launch, search.data));
    const std::vector<double> roots = RootsUpTo(quartic, std::get<double>(limit));
    Outcome outcome = {problem, {InsertFormula{FormulaOf(quartic)}}};
    if (roots.empty()) {
        outcome.events.emplace_back(Box{kNoRoots});
        return outcome;
    }
    outcome.events.insert(outcome.events.begin(),
                          WriteLines{QuarticReport(search, quartic, roots, decimals)});
    outcome.events.emplace_back(Box{kFormulaInserted});
    const auto launches = LaunchesWith(search.launch, &Launch::first, roots);
    outcome.events.emplace_back(AskToPlant(search.place.mover, launches,
                                           ComponentQuestion(V0Plain(search.place.mover, "x"), roots),
                                           Buttons::YesNo));
    return outcome;
}

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
