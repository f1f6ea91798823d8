#include "tools/calculator/graph_routines.h"

#include <cmath>

#include "text/utf8.h"

namespace tavrelo::tools::calculator {
namespace {

using Numbers = std::vector<double>;

constexpr int kSteps = 300;
constexpr int kFewestPoints = 2;
constexpr int kMostPoints = 10000;
constexpr int kPointsArgument = 2;  // its position, when it is given
constexpr text::Color kCurveColor = text::Rgb(0, 0, 192);

/// `count` numbers in equal steps, both ends included.
Numbers Spaced(double first, double last, int count) {
    const double range = numeric::CheckedSubtract(last, first);
    Numbers numbers;
    for (int k = 0; k < count; ++k)
        numbers.push_back(first + k * range / (count - 1));
    return numbers;
}

/// The parameter of a curve, from the limits and the number of points among the arguments.
Numbers ParameterOf(const Arguments& arguments) {
    const int count = arguments.Count() > kPointsArgument
                          ? numeric::RoundToInteger(arguments.Number(kPointsArgument))
                          : kSteps;
    if (count < kFewestPoints || count > kMostPoints)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "number of points");
    return Spaced(arguments.Number(0), arguments.Number(1), count);
}

/// The formula at each of the points; where it has no value the picture is cleared and the failure goes on.
Numbers Sample(Task& task, const Numbers& at) {
    try {
        Numbers values;
        for (const double x : at)
            values.push_back(task.At(x));
        return values;
    } catch (const numeric::RuntimeFailure&) {
        task.form.pic.Canvas().Cls();
        throw;
    }
}

/// The same for a formula that the parser has accepted before.
Numbers SampleFormula(Task& task, const std::string& formula, const Numbers& at) {
    task.expression.Get().SetExpression(formula);
    return Sample(task, at);
}

void DrawCurve(Task& task, const Numbers& xs, const Numbers& ys) {
    window::Surface& surface = task.form.pic.Canvas();
    surface.Cls();
    task.engine.Begin();
    task.engine.DrawGraph(surface, xs, ys, kCurveColor, task.decimals);
}

/// The two formulas around the only "&".
std::pair<std::string, std::string> SplitPair(const std::string& text) {
    const std::size_t mark = text.find('&');
    if (mark == std::string::npos || text.find('&', mark + 1) != std::string::npos)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "pair of formulas");
    const std::string first = text::Trim(text.substr(0, mark));
    const std::string second = text::Trim(text.substr(mark + 1));
    if (first.empty() || second.empty())
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "half a pair of formulas");
    return {first, second};
}

}  // namespace

void DrawFormula(Task& task, double first, double last) {
    const Numbers xs = Spaced(first, last, kSteps + 1);
    DrawCurve(task, xs, Sample(task, xs));
}

Outcome CartesianGraph(Task& task) {
    DrawFormula(task, task.arguments.Number(0), task.arguments.Number(1));
    return std::nullopt;
}

Outcome PolarGraph(Task& task) {
    const Numbers angles = ParameterOf(task.arguments);
    const Numbers radii = Sample(task, angles);
    const double unit = task.form.publics.AngleFactor;
    Numbers xs, ys;
    for (std::size_t k = 0; k < angles.size(); ++k) {
        xs.push_back(radii[k] * std::cos(angles[k] * unit));
        ys.push_back(radii[k] * std::sin(angles[k] * unit));
    }
    DrawCurve(task, xs, ys);
    return std::nullopt;
}

Outcome ParametricGraph(Task& task) {
    const auto [first, second] = SplitPair(task.formula);
    for (const std::string& formula : {first, second})
        if (Outcome refusal = task.Parse(formula, formula))
            return refusal;
    const Numbers parameter = ParameterOf(task.arguments);
    const Numbers xs = SampleFormula(task, first, parameter);
    DrawCurve(task, xs, SampleFormula(task, second, parameter));
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
