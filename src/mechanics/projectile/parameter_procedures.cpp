#include "mechanics/projectile/parameter_procedures.h"

#include <utility>

#include "mechanics/projectile/parameters.h"
#include "mechanics/projectile/planting.h"
#include "mechanics/projectile/quartic.h"

namespace tavrelo::mechanics::projectile {
namespace {

constexpr const char* kNoPolarParameter = "No tengo las ecuaciones con parámetros V0 y/o Theta.";
constexpr const char* kNoComponentParameter = "No tengo las ecuaciones con parámetros V0x y/o V0y.";
constexpr const char* kExactlyTwo =
    "Para aplicar este procedimiento deben ser exactamente 2 datos.\nSi tienes 3 datos descompónlos en dos "
    "parejas de 2 datos y\nobtén un sistema de 2 ecuaciones con 2 incógnitas.";
constexpr const char* kPolarModeNeeded = "Cambia el modo de datos de velocidad a \"md\".";

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

}  // namespace

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

namespace {

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

}  // namespace

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

namespace {

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

}  // namespace tavrelo::mechanics::projectile
