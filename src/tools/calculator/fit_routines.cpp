#include "tools/calculator/fit_routines.h"

#include <algorithm>
#include <iterator>

#include "expr/polynomial_text.h"
#include "numeric/fits.h"
#include "text/number_text.h"
#include "tools/calculator/describe.h"
#include "tools/calculator/result_text.h"

namespace tavrelo::tools::calculator {
namespace {

using Numbers = std::vector<double>;
using Lines = std::vector<std::string>;

constexpr int kLine = 1;  // degree
constexpr text::Color kCurveColor = text::Rgb(0, 0, 192);
constexpr text::Color kPointColor = text::Rgb(255, 0, 0);

struct Data {
    Numbers xs;
    Numbers ys;
};

/// The first `count` arguments as points.
Data DataOf(const Arguments& arguments, int count) {
    Data data;
    for (int k = 0; k + 1 < count; k += 2) {
        data.xs.push_back(arguments.Number(k));
        data.ys.push_back(arguments.Number(k + 1));
    }
    return data;
}

/// How many points lie outside the frame, which is as large as the curve; nothing for none.
std::string OutsideWords(const drawing::PointLists& curve, const Data& data) {
    const auto [left, right] = std::ranges::minmax(curve.xs);
    const auto [low, high] = std::ranges::minmax(curve.ys);
    int outside = 0;
    for (std::size_t k = 0; k < data.xs.size(); ++k)
        outside += data.xs[k] < left || data.xs[k] > right || data.ys[k] < low || data.ys[k] > high;
    if (outside == 0)
        return {};
    return outside == 1 ? "1 punto queda fuera del recuadro."
                        : std::to_string(outside) + " puntos quedan fuera del recuadro.";
}

void DrawFit(RoutineRun& run, const Data& data, const Numbers& coefs) {
    constexpr int kSamples = static_cast<int>(drawing::DrawEng::kGraphSize);
    const numeric::CurveSamples curve = numeric::SamplePolynomial(coefs, data.xs, kSamples);
    window::Surface& surface = run.Picture();
    surface.Cls();
    run.engine.Begin();
    const drawing::PointLists drawn{curve.xs, curve.ys};
    run.engine.DrawGraph(surface, drawn, kCurveColor, run.decimals, OutsideWords(drawn, data));
    run.engine.DrawGraphPoints(surface, drawn, {data.xs, data.ys}, kPointColor);
    surface.Describe(DescribeFit(data.xs, data.ys, {"x", "y", curve.xs, curve.ys}, run.decimals));
}

/// The polynomial in the language of the formula box.
std::string PolynomialText(const Numbers& coefs) {
    Lines highest_first;
    std::transform(coefs.rbegin(), coefs.rend(), std::back_inserter(highest_first), text::NumberToText);
    return expr::GetPolynomial(highest_first).value_or(std::string());
}

Lines LineReport(const RoutineRun& run, const Data& data, const Numbers& coefs) {
    const double correlation = numeric::Correlation(data.xs, data.ys);
    const numeric::LineSums sums = numeric::SumsOf(data.xs, data.ys);
    return {
        "Recta de mínimos cuadrados: y = ax + b",
        "a = " + text::NumberToText(coefs[1]),
        "b = " + text::NumberToText(coefs[0]),
        "Coeficiente de correlación:   r = " + run.Bare(correlation),
        ";S x = " + run.Shown(sums.x) + ", ;S y = " + run.Shown(sums.y),
        "<x> = " + run.Shown(sums.mean_x) + ", <y> = " + run.Shown(sums.mean_y),
        ";S x¡2 = " + run.Shown(sums.xx) + ", ;S y¡2 = " + run.Shown(sums.yy),
        ";S xy = " + run.Shown(sums.xy),
    };
}

Lines PolynomialReport(int degree, const Numbers& coefs) {
    Lines lines = {"Coeficientes del polinomio de grado " + std::to_string(degree) + ":",
                   "(A!n es el coeficiente de x¡n)"};
    for (std::size_t k = 0; k < coefs.size(); ++k)
        lines.push_back(Subscripted("A", k) + " = " + text::NumberToText(coefs[k]));
    return lines;
}

Outcome Fit(RoutineRun& run, int degree, const Data& data) {
    const auto coefs = numeric::PolyFit(degree, data.xs, data.ys);
    if (!coefs)
        return text::Refusal{std::string(numeric::kFitNotSolved)};
    DrawFit(run, data, *coefs);
    Lines lines = degree == kLine ? LineReport(run, data, *coefs) : PolynomialReport(degree, *coefs);
    lines.push_back(PolynomialText(*coefs));
    run.Report(lines);
    return std::nullopt;
}

}  // namespace

Outcome LineFit(RoutineRun& run) { return Fit(run, kLine, DataOf(run.arguments, run.arguments.Count())); }

Outcome ExponentialFit(RoutineRun& run) {
    Data data = DataOf(run.arguments, run.arguments.Count());
    const auto logarithms = numeric::LogarithmsOf(data.ys);
    if (!logarithms)
        return text::Refusal{std::string(numeric::kNotPositive)};
    return Fit(run, kLine, {data.xs, *logarithms});
}

Outcome PowerFit(RoutineRun& run) {
    Data data = DataOf(run.arguments, run.arguments.Count());
    const auto xs = numeric::LogarithmsOf(data.xs);
    const auto ys = numeric::LogarithmsOf(data.ys);
    if (!xs || !ys)
        return text::Refusal{std::string(numeric::kNotPositive)};
    return Fit(run, kLine, {*xs, *ys});
}

Outcome PolynomialFit(RoutineRun& run) {
    const int count = run.arguments.Count();
    if (count % 2 == 0)
        return text::Refusal{"Da el orden del polinomio como último argumento."};
    const int degree = numeric::RoundToInteger(run.arguments.Number(count - 1));
    return Fit(run, degree, DataOf(run.arguments, count - 1));
}

}  // namespace tavrelo::tools::calculator
