#include "tools/calculator/graph_routines.h"

#include <cmath>

#include "text/utf8.h"
#include "tools/calculator/describe.h"

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
Numbers Sample(RoutineRun& run, const Numbers& at) {
    try {
        Numbers values(at.size());
        run.Function().Column(at, values);
        return values;
    } catch (const numeric::RuntimeFailure&) {
        run.Picture().Cls();
        throw;
    }
}

/// The same for a formula that the parser has accepted before.
Numbers SampleFormula(RoutineRun& run, const std::string& formula, const Numbers& at) {
    run.expression.Get().SetExpression(formula);
    return Sample(run, at);
}

void DrawCurve(RoutineRun& run, const Numbers& xs, const Numbers& ys) {
    window::Surface& surface = run.Picture();
    surface.Cls();
    run.engine.Begin();
    run.engine.DrawGraph(surface, {xs, ys}, kCurveColor, run.decimals);
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

void DrawFormula(RoutineRun& run, double first, double last) {
    const Numbers xs = Spaced(first, last, kSteps + 1);
    const Numbers ys = Sample(run, xs);
    DrawCurve(run, xs, ys);
    run.Picture().Describe(DescribeGraph(run.typed_formula, {"x", "y", xs, ys}, run.decimals));
}

Outcome CartesianGraph(RoutineRun& run) {
    DrawFormula(run, run.arguments.Number(0), run.arguments.Number(1));
    return std::nullopt;
}

Outcome PolarGraph(RoutineRun& run) {
    const Numbers angles = ParameterOf(run.arguments);
    const Numbers radii = Sample(run, angles);
    const double unit = run.form.publics.AngleFactor;
    Numbers xs, ys;
    for (std::size_t k = 0; k < angles.size(); ++k) {
        xs.push_back(radii[k] * std::cos(angles[k] * unit));
        ys.push_back(radii[k] * std::sin(angles[k] * unit));
    }
    DrawCurve(run, xs, ys);
    run.Picture().Describe(DescribePath("r = " + run.typed_formula, {"x", "y", xs, ys}, run.decimals));
    return std::nullopt;
}

Outcome ParametricGraph(RoutineRun& run) {
    const auto [first, second] = SplitPair(run.formula);
    for (const std::string& formula : {first, second})
        if (Outcome refusal = run.Parse(formula, formula))
            return refusal;
    const Numbers parameter = ParameterOf(run.arguments);
    const Numbers xs = SampleFormula(run, first, parameter);
    const Numbers ys = SampleFormula(run, second, parameter);
    DrawCurve(run, xs, ys);
    run.Picture().Describe(
        DescribePath("x = " + first + ", y = " + second, {"x", "y", xs, ys}, run.decimals));
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
