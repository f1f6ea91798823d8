#include "mechanics/motion/parameters.h"

#include <algorithm>

#include "mechanics/motion/acceleration_cases.h"
#include "mechanics/motion/holding.h"
#include "mechanics/motion/speed_cases.h"
#include "mechanics/motion/statement_cases.h"
#include "numeric/checked.h"
#include "text/signed_sum.h"

namespace tavrelo::mechanics::motion {
namespace {

/// What a data set leads to in each kind of equations.
struct Row {
    DataSet set;
    Finding (*speed)(const ParameterCase& each);
    Finding (*acceleration)(const ParameterCase& each);
    Statement (*both)(const ParameterCase& each);
};
constexpr Row kRows[] = {
    {DataSet::TimePosition, speed::OfTimePosition, acceleration::OfTimePosition, statement::OfTimePosition},
    {DataSet::TimeSpeed, speed::OfTimeSpeed, acceleration::OfTimeSpeed, statement::OfTimeSpeed},
    {DataSet::PositionSpeed, speed::OfPositionSpeed, acceleration::OfPositionSpeed,
     statement::OfPositionSpeed},
    {DataSet::TimesDx, speed::OfTimesDx, acceleration::OfTimesDx, statement::OfTimesDx},
    {DataSet::PositionsDt, speed::OfPositionsDt, acceleration::OfPositionsDt, statement::OfPositionsDt},
    {DataSet::PositionsDv, speed::RefuseKnownAcceleration, acceleration::OfPositionsDv,
     statement::OfPositionsDv},
    {DataSet::TimesDv, speed::RefuseKnownAcceleration, acceleration::RefuseSet, statement::OfTimesDv},
    {DataSet::DtDv, speed::RefuseKnownAcceleration, acceleration::RefuseSet, statement::OfDtDv},
    {DataSet::TimesXFactor, speed::OfTimesXFactor, acceleration::OfTimesXFactor, statement::OfTimesXFactor},
    {DataSet::TimesVFactor, speed::OfTimesVFactor, acceleration::OfTimesVFactor, statement::OfTimesVFactor},
    {DataSet::PositionsTFactor, speed::OfPositionsTFactor, acceleration::OfPositionsTFactor,
     statement::OfPositionsTFactor},
    {DataSet::PositionsVFactor, speed::OfPositionsVFactor, acceleration::OfPositionsVFactor,
     statement::OfPositionsVFactor},
    {DataSet::SpeedsTFactor, speed::OfSpeedsTFactor, acceleration::OfSpeedsTFactor,
     statement::OfSpeedsTFactor},
    {DataSet::SpeedsXFactor, speed::OfSpeedsXFactor, acceleration::OfSpeedsXFactor,
     statement::OfSpeedsXFactor},
};

const Row& RowOf(DataSet set) {
    return *std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& row) { return row.set == set; });
}

constexpr const char* kMissing = "No tengo las ecuaciones con parámetros del móvil ";
constexpr const char* kNoSpeed = "No hay solución para la velocidad.";
constexpr const char* kNoAcceleration = "No hay solución para la aceleración.";
constexpr const char* kNoAccelerationSet = "No existe solución para la aceleración.";
constexpr const char* kNoSolution = "No existe solución.";
constexpr const char* kBaseData = "Estás sustituyendo datos del punto base.";

constexpr const char* kTakeSpeed =
    "¿Deseas actualizar la ecuación de movimiento\ncon este valor encontrado de la velocidad?";
constexpr const char* kTakeOneSpeed =
    "Si deseas actualizar la ecuación de movimiento\n"
    "con el primero de los 2 valores encontrados para la velocidad\n"
    "oprime el botón \"Sí\". Si con el segundo valor oprime el botón \"No\".";
constexpr const char* kTakeAcceleration =
    "¿Deseas actualizar la ecuación de movimiento\ncon este valor encontrado de la aceleración?";
constexpr const char* kTakeOneAcceleration =
    "¿Deseas actualizar la ecuación de movimiento\n"
    "con alguno de estos 2 valores encontrados para la aceleración?\n"
    "Si escoges el primero oprime el botón \"Sí\". Para el segundo\n"
    "oprime el botón \"No\".";

/// The texts in which the two kinds with one parameter differ.
struct Wording {
    const char* one;  // in front of one value, and of two
    const char* two;
    const char* join;  // between two
    const char* question;
    const char* question_of_two;
};
constexpr Wording kSpeedWording = {"Se halló: ", "Se hallaron: ", "  o  ", kTakeSpeed, kTakeOneSpeed};
constexpr Wording kAccelerationWording = {"Se halló: ", "Se halló: ", " o bien ", kTakeAcceleration,
                                          kTakeOneAcceleration};

/// A click on a point of a stretch with parameters.
struct Click {
    const Problem& problem;
    points::PointPlace place;
    const Equations& equations;
    Labels labels;

    bool SeeksSpeed() const { return equations.kind == EquationKind::SpeedUnknown; }
    /// The unknown in markup.
    std::string ParameterName() const {
        return SeeksSpeed() ? labels.At(Quantity::Speed, equations.base) : std::string(labels.Acceleration());
    }
    std::string Title() const {
        const std::string stretch = OfStretch(place.mover, place.stretch);
        if (equations.kind != EquationKind::BothUnknown)
            return "Sust. en ecs. con parámetro " + ParameterName() + stretch;
        return "Sust. en ecs. con parámetros " + std::string(labels.Name(Quantity::Speed)) + " y " +
               std::string(labels.Acceleration()) + stretch;
    }
    PlantRequest Planting(const text::Value& v, const text::Value& a) const {
        return {place.mover, place.stretch, equations.base, equations.t, equations.x, v, a};
    }
    PlantRequest PlantingWith(double parameter) const {
        return SeeksSpeed() ? Planting(parameter, equations.a) : Planting(equations.v, parameter);
    }
};

Outcome Reported(const Click& click, std::vector<std::string> lines) {
    return {click.problem, {WriteLines{std::move(lines)}}};
}

std::string NoneText(const Click& click, DataSet set) {
    if (!click.SeeksSpeed())
        return kNoAcceleration;
    if (set == DataSet::PositionSpeed)
        return kNoSpeed;
    return "No hay solución para " + click.labels.PlainAt(Quantity::Speed, click.equations.base);
}

/// Reports the values of the one parameter and asks which of them the equations take.
Outcome FoundValues(const Click& click, const std::string& data_line, const Candidates& values) {
    const Wording& wording = click.SeeksSpeed() ? kSpeedWording : kAccelerationWording;
    const auto value = [&](std::size_t i) {
        return click.ParameterName() + " = " + click.labels.Number(values[i]);
    };
    const bool has_two = values.size() > 1;
    const std::string found =
        has_two ? wording.two + value(0) + wording.join + value(1) : wording.one + value(0);
    Outcome outcome = Reported(click, {click.Title(), data_line, found});
    Question question = {Buttons::YesNo, has_two ? wording.question_of_two : wording.question,
                         click.PlantingWith(values[0]), std::nullopt};
    if (has_two)
        question.no = click.PlantingWith(values[1]);
    outcome.events.emplace_back(std::move(question));
    return outcome;
}

/// Values that the motion does not bear out are no solution.
Step FindParameter(const Click& click, const ParameterCase& each) {
    const Row& row = RowOf(each.given.set);
    Finding finding = click.SeeksSpeed() ? row.speed(each) : row.acceleration(each);
    if (const auto* refusal = std::get_if<text::Refusal>(&finding))
        return *refusal;
    const std::string data_line = "Datos: " + DataLine(each.given, each.point, click.labels);
    if (auto* remarks = std::get_if<Remarks>(&finding)) {
        std::vector<std::string> lines = {click.Title(), data_line};
        lines.insert(lines.end(), remarks->lines.begin(), remarks->lines.end());
        return Reported(click, std::move(lines));
    }
    Candidates& values = std::get<Candidates>(finding);
    std::erase_if(values, [&](double value) {
        const double v = click.SeeksSpeed() ? value : click.equations.v;
        const double a = click.SeeksSpeed() ? click.equations.a : value;
        numeric::Finite(value);
        return !Fulfils(each.given.set, each.given.values, v, a);
    });
    if (values.empty())
        return text::Refusal{NoneText(click, each.given.set)};
    return FoundValues(click, data_line, values);
}

std::string IsArbitrary(const char* what, std::string_view name) {
    return what + std::string(name) + " es arbitraria.";
}

std::string ArbitrarySpeed(const Click& click) {
    return IsArbitrary("La velocidad ", click.labels.Name(Quantity::Speed));
}

std::string ArbitraryAcceleration(const Click& click) {
    return IsArbitrary("La aceleración ", click.labels.Acceleration());
}

std::string EquationLine(const Click& click, const ParameterEquation& equation) {
    const std::string v = click.labels.At(Quantity::Speed, click.equations.base);
    const std::string a(click.labels.Acceleration());
    for (const double each :
         {equation.v_squared, equation.v, equation.a_squared, equation.a, equation.constant})
        numeric::Finite(each);
    const text::SumTerm terms[] = {
        {equation.v_squared, v + "¡2"}, {equation.v, v}, {equation.a_squared, a + "¡2"}, {equation.a, a}};
    return text::SignedSum(terms, click.labels.Decimals()) + " = " + click.labels.Number(equation.constant);
}

/// The data determine the acceleration alone: the equations may take it.
Outcome OfferAcceleration(const Click& click, const std::string& data_line, double a) {
    Outcome outcome =
        Reported(click, {click.Title(), data_line,
                         std::string(click.labels.Acceleration()) + " = " + click.labels.Number(a)});
    outcome.events.emplace_back(
        Question{Buttons::OkCancel,
                 "Estos datos determinan la aceleración como " + click.labels.PlainNumber(a) +
                     "\nOprime el botón \"Aceptar\" si deseas replantear las ecuaciones con este valor.",
                 click.Planting({}, a), std::nullopt});
    return outcome;
}

Step StateEquation(const Click& click, const ParameterCase& each) {
    const Statement statement = RowOf(each.given.set).both(each);
    if (const auto* refusal = std::get_if<text::Refusal>(&statement))
        return *refusal;
    const auto& equation = std::get<ParameterEquation>(statement);
    const bool has_speed = equation.v != 0.0 || equation.v_squared != 0.0;
    const bool has_acceleration = equation.a != 0.0 || equation.a_squared != 0.0;
    const std::string data_line = "Datos: " + DataLine(each.given, each.point, click.labels);
    std::vector<std::string> lines = {click.Title(), data_line};
    if (!has_speed && has_acceleration)
        return OfferAcceleration(click, data_line, numeric::CheckedDivide(equation.constant, equation.a));
    if (!has_speed) {
        if (equation.constant != 0.0)
            return text::Refusal{kNoSolution};
        lines.push_back(ArbitrarySpeed(click));
        lines.push_back(ArbitraryAcceleration(click));
        return Reported(click, std::move(lines));
    }
    lines.push_back(EquationLine(click, equation));
    if (!has_acceleration) {
        if (equation.v_squared * equation.constant < 0.0)
            return text::Refusal{kNoSolution};
        lines.push_back(ArbitraryAcceleration(click));
    }
    return Reported(click, std::move(lines));
}

/// t, x and v of one point determine both parameters.
Step FindBoth(const Click& click, int point, double t, double x, double v) {
    const Equations& equations = click.equations;
    const double d = t - equations.t;
    if (d == 0.0)
        return text::Refusal{kBaseData};
    const double speed = numeric::CheckedDivide(2.0 * (x - equations.x), d) - v;
    const double a = numeric::CheckedDivide(v - speed, d);
    if (!TermsCancel({equations.x, speed * d, 0.5 * a * d * d, -x}) || !TermsCancel({speed, a * d, -v}))
        return text::Refusal{kNoSolution};
    const Labels& labels = click.labels;
    Outcome outcome =
        Reported(click, {click.Title(), "Datos: " + labels.Point({point, t, x, v}),
                         kSpeedWording.one + labels.Given(Quantity::Speed, equations.base, speed) + ", " +
                             std::string(labels.Acceleration()) + " = " + labels.Number(a)});
    outcome.events.emplace_back(Question{Buttons::YesNo, kTakeSpeed, click.Planting(speed, a), std::nullopt});
    return outcome;
}

text::Refusal NoDataSet(EquationKind kind) {
    switch (kind) {
        case EquationKind::SpeedUnknown:
            return {kNoSpeed};
        case EquationKind::AccelerationUnknown:
            return {kNoAccelerationSet};
        default:
            return {kNoSolution};
    }
}

}  // namespace

Step SubstituteWithParameters(const Problem& problem, const points::PointPlace& place, const PointData& data,
                              int decimals) {
    const Equations& equations = problem.EquationsOf(place.mover, place.stretch);
    if (equations.kind == EquationKind::NotPlanted || equations.IsComplete())
        return text::Refusal{kMissing + std::to_string(place.mover) + ", tramo" +
                             std::to_string(place.stretch)};
    const Labels labels(place.mover, place.stretch, decimals);
    const Click click = {problem, place, equations, labels};
    const bool seeks_both = equations.kind == EquationKind::BothUnknown;
    const auto t = ValueOf(data, kTime);
    const auto x = ValueOf(data, kPosition);
    const auto v = ValueOf(data, kSpeed);
    if (seeks_both && t && x && v)
        return FindBoth(click, place.point, *t, *x, *v);
    const auto given = FindDataSet(problem, place, data);
    if (!given || given->referred == place.point)  // a point is no interval from itself
        return NoDataSet(equations.kind);
    const ParameterCase each = {*given, equations, labels, place.point};
    return seeks_both ? StateEquation(click, each) : FindParameter(click, each);
}

}  // namespace tavrelo::mechanics::motion
