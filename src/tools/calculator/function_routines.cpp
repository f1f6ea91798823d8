#include "tools/calculator/function_routines.h"

#include <cmath>

#include "numeric/derivatives.h"
#include "numeric/ode.h"
#include "numeric/quadrature.h"
#include "text/number_text.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr int kMostValues = 100;
constexpr double kStepSlack = 1e-9;  // so that 0.1 fits ten times into 1
constexpr double kFirstDerivativeStep = 0.1;
constexpr double kSecondDerivativeStep = 0.01;  // when none is given
constexpr double kCoarsestAccuracy = 0.001;

/// Points of as many coordinates as the formula has variables, one behind the other.
struct Points {
    std::vector<double> coordinates;
    std::size_t variables;

    std::size_t Count() const { return coordinates.size() / variables; }
    std::span<const double> At(std::size_t index) const {
        return std::span(coordinates).subspan(index * variables, variables);
    }
    std::vector<double> Column(std::size_t variable) const {
        std::vector<double> column(Count());
        for (std::size_t k = 0; k < column.size(); ++k)
            column[k] = At(k)[variable];
        return column;
    }
};

std::vector<double> ValuesAt(RoutineRun& run, const Points& points) {
    std::vector<std::vector<double>> columns;
    for (std::size_t variable = 0; variable < points.variables; ++variable)
        columns.push_back(points.Column(variable));
    const std::vector<std::span<const double>> spans(columns.begin(), columns.end());
    std::vector<double> values(points.Count());
    run.expression.Get().EvaluateColumn(spans, values);
    return values;
}

text::Refusal TooManyValues() { return {"Calculo máximo " + std::to_string(kMostValues) + " valores."}; }

std::string ValueLine(const RoutineRun& run, std::span<const double> point, double value) {
    std::string list;
    for (const double coordinate : point)
        list += (list.empty() ? "" : ", ") + run.Shown(coordinate);
    return "f(" + list + ") = " + run.Shown(value);
}

Outcome CalcTable(RoutineRun& run, const Points& points) {
    if (points.Count() > kMostValues)
        return TooManyValues();
    const std::vector<double> values = ValuesAt(run, points);
    std::vector<std::string> lines = {"Función: " + run.ShownFormula()};
    for (std::size_t k = 0; k < values.size(); ++k)
        lines.push_back(ValueLine(run, points.At(k), values[k]));
    run.Report(lines);
    return std::nullopt;
}

/// A formula that is one number keeps the sign of the limits' order; every other one loses it.
Outcome SimpsonIntegral(RoutineRun& run) {
    const double first = run.arguments.Number(0);
    const double last = run.arguments.Number(1);
    const double value = text::IsNum(run.formula)
                             ? numeric::IntegrateConstant(text::ToNumber(run.formula), first, last)
                             : numeric::Integrate(run.Function(), first, last);
    run.Report(
        {"La integral de la función " + run.ShownFormula(),
         "entre x!1 = " + run.Shown(first) + " y x!2 = " + run.Shown(last) + " es:" + run.Shown(value)});
    return std::nullopt;
}

Outcome AdaptiveIntegral(RoutineRun& run) {
    constexpr int kAccuracyArgument = 3;
    const double first = run.arguments.Number(0);
    const double last = run.arguments.Number(1);
    const bool has_accuracy = run.arguments.Count() > kAccuracyArgument;
    const double accuracy =
        has_accuracy ? run.arguments.Number(kAccuracyArgument) : numeric::kOdeIntegralAccuracy;
    if (accuracy > kCoarsestAccuracy)
        return text::Refusal{"No tomes el argumento \"épsilon\" mayor que 0.001."};
    const auto integral = numeric::IntegrateOde([&](std::span<const double> at) { return run.At(at[0]); },
                                                first, last, accuracy);
    if (integral.outcome == numeric::OdeOutcome::TooManySteps) {
        run.TellTooManySteps();
        return std::nullopt;
    }
    run.Report({"La integral de la función f(x) = " + run.ShownFormula(),
                "en el intervalo [" + run.Shown(first) + ", " + run.Shown(last) + "]",
                "es " + run.Shown(integral.value)});
    return std::nullopt;
}

}  // namespace

Outcome TableOfX(RoutineRun& run) { return CalcTable(run, {run.arguments.AllNumbers(), 1}); }

Outcome TableOfXY(RoutineRun& run) { return CalcTable(run, {run.arguments.AllNumbers(), 2}); }

Outcome TableOfXYZ(RoutineRun& run) { return CalcTable(run, {run.arguments.AllNumbers(), 3}); }

Outcome TableOfSteps(RoutineRun& run) {
    const double first = run.arguments.Number(0);
    const double last = run.arguments.Number(1);
    const double step = run.arguments.Number(2);
    if (step == 0)
        return text::Refusal{"El incremento no puede ser cero."};
    const double steps =
        std::floor(numeric::CheckedDivide(numeric::CheckedSubtract(last, first), step) + kStepSlack);
    if (steps >= kMostValues)
        return TooManyValues();
    Points points{{}, 1};
    for (int k = 0; k <= steps; ++k)
        points.coordinates.push_back(first + k * step);
    return CalcTable(run, points);
}

Outcome FirstDerivative(RoutineRun& run) {
    std::vector<std::string> lines = {"Derivada(s) de la función f(x) = " + run.ShownFormula()};
    for (const double x : run.arguments.AllNumbers()) {
        const auto derivative = numeric::Derivative(run.Function(), x, kFirstDerivativeStep);
        lines.push_back("f '(" + run.Shown(x) + ") = " + run.Shown(derivative.value) + " (" +
                        run.Shown(derivative.error) + ")");
    }
    run.Report(lines);
    return std::nullopt;
}

Outcome SecondDerivative(RoutineRun& run) {
    const double x = run.arguments.Number(0);
    const double step = run.arguments.Count() > 1 ? run.arguments.Number(1) : kSecondDerivativeStep;
    const double value = numeric::SecondDeriv(run.Function(), x, step);
    run.Report({"Segunda derivada de la función f(x) = " + run.ShownFormula(),
                ";e = " + run.Shown(step) + ":   f ''(" + run.Shown(x) + ") = " + run.Shown(value)});
    return std::nullopt;
}

Outcome Integral(RoutineRun& run) {
    constexpr int kLimitsOnly = 2;
    return run.arguments.Count() == kLimitsOnly ? SimpsonIntegral(run) : AdaptiveIntegral(run);
}

}  // namespace tavrelo::tools::calculator
