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
};

text::Refusal TooManyValues() { return {"Calculo máximo " + std::to_string(kMostValues) + " valores."}; }

std::string ValueLine(Task& task, std::span<const double> point) {
    std::string list;
    for (const double coordinate : point)
        list += (list.empty() ? "" : ", ") + task.Shown(coordinate);
    return "f(" + list + ") = " + task.Shown(task.Evaluate(point));
}

Outcome CalcTable(Task& task, const Points& points) {
    if (points.Count() > kMostValues)
        return TooManyValues();
    std::vector<std::string> lines = {"Función: " + task.ShownFormula()};
    for (std::size_t k = 0; k < points.Count(); ++k)
        lines.push_back(ValueLine(task, points.At(k)));
    task.Report(lines);
    return std::nullopt;
}

/// A formula that is one number keeps the sign of the limits' order; every other one loses it.
Outcome SimpsonIntegral(Task& task) {
    const double first = task.arguments.Number(0);
    const double last = task.arguments.Number(1);
    const double value = text::IsNum(task.formula)
                             ? numeric::IntegrateConstant(text::ToNumber(task.formula), first, last)
                             : numeric::Integrate([&](double x) { return task.At(x); }, first, last);
    task.Report(
        {"La integral de la función " + task.ShownFormula(),
         "entre x!1 = " + task.Shown(first) + " y x!2 = " + task.Shown(last) + " es:" + task.Shown(value)});
    return std::nullopt;
}

Outcome AdaptiveIntegral(Task& task) {
    constexpr int kAccuracyArgument = 3;
    const double first = task.arguments.Number(0);
    const double last = task.arguments.Number(1);
    const bool has_accuracy = task.arguments.Count() > kAccuracyArgument;
    const double accuracy =
        has_accuracy ? task.arguments.Number(kAccuracyArgument) : numeric::kOdeIntegralAccuracy;
    if (accuracy > kCoarsestAccuracy)
        return text::Refusal{"No tomes el argumento \"épsilon\" mayor que 0.001."};
    const auto integral = numeric::IntegrateOde([&](std::span<const double> at) { return task.At(at[0]); },
                                                first, last, accuracy);
    if (integral.outcome == numeric::OdeOutcome::TooManySteps) {
        task.TellTooManySteps();
        return std::nullopt;
    }
    task.Report({"La integral de la función f(x) = " + task.ShownFormula(),
                 "en el intervalo [" + task.Shown(first) + ", " + task.Shown(last) + "]",
                 "es " + task.Shown(integral.value)});
    return std::nullopt;
}

}  // namespace

Outcome TableOfX(Task& task) { return CalcTable(task, {task.arguments.AllNumbers(), 1}); }

Outcome TableOfXY(Task& task) { return CalcTable(task, {task.arguments.AllNumbers(), 2}); }

Outcome TableOfXYZ(Task& task) { return CalcTable(task, {task.arguments.AllNumbers(), 3}); }

Outcome TableOfSteps(Task& task) {
    const double first = task.arguments.Number(0);
    const double last = task.arguments.Number(1);
    const double step = task.arguments.Number(2);
    if (step == 0)
        return text::Refusal{"El incremento no puede ser cero."};
    const double steps =
        std::floor(numeric::CheckedDivide(numeric::CheckedSubtract(last, first), step) + kStepSlack);
    if (steps >= kMostValues)
        return TooManyValues();
    Points points{{}, 1};
    for (int k = 0; k <= steps; ++k)
        points.coordinates.push_back(first + k * step);
    return CalcTable(task, points);
}

Outcome FirstDerivative(Task& task) {
    std::vector<std::string> lines = {"Derivada(s) de la función f(x) = " + task.ShownFormula()};
    for (const double x : task.arguments.AllNumbers()) {
        const auto derivative =
            numeric::Derivative([&](double at) { return task.At(at); }, x, kFirstDerivativeStep);
        lines.push_back("f '(" + task.Shown(x) + ") = " + task.Shown(derivative.value) + " (" +
                        task.Shown(derivative.error) + ")");
    }
    task.Report(lines);
    return std::nullopt;
}

Outcome SecondDerivative(Task& task) {
    const double x = task.arguments.Number(0);
    const double step = task.arguments.Count() > 1 ? task.arguments.Number(1) : kSecondDerivativeStep;
    const double value = numeric::SecondDeriv([&](double at) { return task.At(at); }, x, step);
    task.Report({"Segunda derivada de la función f(x) = " + task.ShownFormula(),
                 ";e = " + task.Shown(step) + ":   f ''(" + task.Shown(x) + ") = " + task.Shown(value)});
    return std::nullopt;
}

Outcome Integral(Task& task) {
    constexpr int kLimitsOnly = 2;
    return task.arguments.Count() == kLimitsOnly ? SimpsonIntegral(task) : AdaptiveIntegral(task);
}

}  // namespace tavrelo::tools::calculator
