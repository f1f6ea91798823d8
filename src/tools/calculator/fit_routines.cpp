#include "tools/calculator/fit_routines.h"

#include <algorithm>
#include <iterator>

#include "expr/polynomial_text.h"
#include "numeric/fits.h"
#include "text/number_text.h"
#include "tools/calculator/report.h"

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

void DrawFit(Task& task, const Data& data, const Numbers& coefs) {
    constexpr int kSamples = static_cast<int>(drawing::DrawEng::kGraphSize);
    const numeric::CurveSamples curve = numeric::SamplePolynomial(coefs, data.xs, kSamples);
    window::Surface& surface = task.form.pic.Canvas();
    surface.Cls();
    task.engine.Begin();
    task.engine.DrawGraph(surface, curve.xs, curve.ys, kCurveColor, task.decimals);
    task.engine.DrawGraphPoints(surface, {curve.xs, curve.ys}, {data.xs, data.ys}, kPointColor);
}

/// The polynomial in the language of the formula box.
std::string PolynomialText(const Numbers& coefs) {
    Lines highest_first;
    std::transform(coefs.rbegin(), coefs.rend(), std::back_inserter(highest_first), text::NumberToText);
    return expr::GetPolynomial(highest_first).value_or(std::string());
}

Lines LineReport(const Task& task, const Data& data, const Numbers& coefs) {
    const double correlation = numeric::Correlation(data.xs, data.ys);
    const numeric::LineSums sums = numeric::SumsOf(data.xs, data.ys);
    return {
        "Recta de mínimos cuadrados: y = ax + b",
        "a = " + text::NumberToText(coefs[1]),
        "b = " + text::NumberToText(coefs[0]),
        "Coeficiente de correlación:   r = " + task.Bare(correlation),
        ";S x = " + task.Shown(sums.x) + ", ;S y = " + task.Shown(sums.y),
        "<x> = " + task.Shown(sums.mean_x) + ", <y> = " + task.Shown(sums.mean_y),
        ";S x¡2 = " + task.Shown(sums.xx) + ", ;S y¡2 = " + task.Shown(sums.yy),
        ";S xy = " + task.Shown(sums.xy),
    };
}

Lines PolynomialReport(int degree, const Numbers& coefs) {
    Lines lines = {"Coeficientes del polinomio de grado " + std::to_string(degree) + ":",
                   "(A!n es el coeficiente de x¡n)"};
    for (std::size_t k = 0; k < coefs.size(); ++k)
        lines.push_back(Subscripted("A", k) + " = " + text::NumberToText(coefs[k]));
    return lines;
}

Outcome Fit(Task& task, int degree, const Data& data) {
    const auto coefs = numeric::PolyFit(degree, data.xs, data.ys);
    if (!coefs)
        return text::Refusal{std::string(numeric::kFitNotSolved)};
    DrawFit(task, data, *coefs);
    Lines lines = degree == kLine ? LineReport(task, data, *coefs) : PolynomialReport(degree, *coefs);
    lines.push_back(PolynomialText(*coefs));
    task.Report(lines);
    return std::nullopt;
}

}  // namespace

Outcome LineFit(Task& task) { return Fit(task, kLine, DataOf(task.arguments, task.arguments.Count())); }

Outcome ExponentialFit(Task& task) {
    Data data = DataOf(task.arguments, task.arguments.Count());
    const auto logarithms = numeric::LogarithmsOf(data.ys);
    if (!logarithms)
        return text::Refusal{std::string(numeric::kNotPositive)};
    return Fit(task, kLine, {data.xs, *logarithms});
}

Outcome PowerFit(Task& task) {
    Data data = DataOf(task.arguments, task.arguments.Count());
    const auto xs = numeric::LogarithmsOf(data.xs);
    const auto ys = numeric::LogarithmsOf(data.ys);
    if (!xs || !ys)
        return text::Refusal{std::string(numeric::kNotPositive)};
    return Fit(task, kLine, {*xs, *ys});
}

Outcome PolynomialFit(Task& task) {
    const int count = task.arguments.Count();
    if (count % 2 == 0)
        return text::Refusal{"Da el orden del polinomio como último argumento."};
    const int degree = numeric::RoundToInteger(task.arguments.Number(count - 1));
    return Fit(task, degree, DataOf(task.arguments, count - 1));
}

}  // namespace tavrelo::tools::calculator
