#include "tools/calculator/root_routines.h"

#include <algorithm>
#include <iterator>

#include "numeric/polynomials.h"
#include "numeric/root_search.h"
#include "text/number_text.h"
#include "tools/calculator/result_text.h"

namespace tavrelo::tools::calculator {
namespace {

using Lines = std::vector<std::string>;

/// Terms of a sum whose first one has neither a plus nor the blank that stands for it.
class Sum {
  public:
    explicit Sum(int decimals) : m_decimals(decimals) {}
    Sum& Add(double coef, const text::Value& factor) {
        m_text += text::TermText(!m_text.empty(), false, text::RoundTo(coef, m_decimals), factor);
        return *this;
    }
    /// "0" when every term vanishes.
    std::string Text() const { return m_text.empty() ? "0" : m_text.substr(1); }

  private:
    int m_decimals;
    std::string m_text;
};

constexpr int kNoTerm = 1;  // the factor of a constant

std::string PairText(const RoutineRun& run, double real, double imaginary) {
    return run.Shown(real) + " #mame " + run.Shown(imaginary) + " i";
}

std::string QuadraticRootsText(const RoutineRun& run, const numeric::QuadraticRoots& roots) {
    if (roots.real)
        return "x!1 = " + run.Shown(roots.first) + ",  x!2 = " + run.Shown(roots.second);
    return "x!1!,!2 = " + PairText(run, roots.first, roots.second);
}

Outcome ReportQuadratic(RoutineRun& run, Lines equation, double a, double b, double c) {
    if (a == 0)
        return text::Refusal{"No puedo resolver la ecuación."};
    equation.push_back(QuadraticRootsText(run, numeric::QuadRoots(a, b, c)));
    equation.push_back("Valor extremo en x = " + run.Shown(numeric::CheckedDivide(-b, 2 * a)));
    run.Report(equation);
    return std::nullopt;
}

Lines CubicRootLines(const RoutineRun& run, double a, double b, double c, double d) {
    const numeric::CubicRootsResult roots = numeric::CubicRoots(a, b, c, d);
    Lines lines = {"x!1 = " + run.Shown(roots.first)};
    if (roots.real) {
        lines.push_back("x!2 = " + run.Shown(roots.second));
        lines.push_back("x!3 = " + run.Shown(roots.third));
    } else {
        lines.push_back("x!2!,!3 = " + PairText(run, roots.second, roots.third));
    }
    return lines;
}

/// Where the derivative of the cubic vanishes.
Lines ExtremeLines(const RoutineRun& run, double a, double b, double c) {
    const numeric::QuadraticRoots extremes = numeric::QuadRoots(3 * a, 2 * b, c);
    if (!extremes.real)
        return {"No hay valores extremos finitos."};
    return {"Valores extremos en x = " + run.Shown(extremes.first), "y en x = " + run.Shown(extremes.second)};
}

std::string RootLine(const RoutineRun& run, std::size_t index, double root, double value) {
    const std::string name = Subscripted("x", index);
    return name + " = " + run.Shown(root) + ",   f(" + name + ") = " + run.Shown(value);
}

}  // namespace

Outcome Quadratic(RoutineRun& run) {
    const Arguments& given = run.arguments;
    return ReportQuadratic(run, {}, given.Number(0), given.Number(1), given.Number(2));
}

Outcome ShiftedQuadratic(RoutineRun& run) {
    const Arguments& given = run.arguments;
    const double a = given.Number(0), b = given.Number(1), c = given.Number(2);
    const double d = given.Number(3), e = given.Number(4);
    const double second = numeric::Finite(a * b * b);
    const double first = numeric::Finite(2 * a * b * c + d);
    const double constant = numeric::Finite(a * c * c + e);
    const std::string square = "(" + Sum(run.decimals).Add(b, "x").Add(c, kNoTerm).Text() + ")¡2";
    const Lines equation = {
        Sum(run.decimals).Add(a, square).Add(d, "x").Add(e, kNoTerm).Text() + " = 0",
        "  o bien",
        Sum(run.decimals).Add(second, "x¡2").Add(first, "x").Add(constant, kNoTerm).Text() + " = 0",
    };
    return ReportQuadratic(run, equation, second, first, constant);
}

Outcome Cubic(RoutineRun& run) {
    const Arguments& given = run.arguments;
    const double a = given.Number(0), b = given.Number(1), c = given.Number(2), d = given.Number(3);
    Lines lines = CubicRootLines(run, a, b, c, d);
    std::ranges::copy(ExtremeLines(run, a, b, c), std::back_inserter(lines));
    lines.push_back("Punto de inflexión en x = " + run.Shown(numeric::CheckedDivide(-b, 3 * a)));
    run.Report(lines);
    return std::nullopt;
}

Outcome Trigonometric(RoutineRun& run) {
    const Arguments& given = run.arguments;
    const double a = given.Number(0), b = given.Number(1), c = given.Number(2);
    Lines lines = {Sum(run.decimals).Add(a, "cos ;q").Add(b, "sen ;q").Add(c, kNoTerm).Text() + " = 0"};
    if (const auto angles = numeric::SolveCosSin(a, b, c))
        lines.push_back(";q!1 = " + run.Shown(angles->first) + "°,   ;q!2 = " + run.Shown(angles->second) +
                        "°");
    else
        lines.emplace_back("No hay solución.");
    run.Report(lines);
    return std::nullopt;
}

Outcome RootSearch(RoutineRun& run) {
    const double first = run.arguments.Number(0);
    const double last = run.arguments.Number(1);
    const auto outcome = numeric::FindRoots(run.Function(), first, last);
    if (const auto* refusal = std::get_if<numeric::RootsRefusal>(&outcome))
        return text::Refusal{std::string(TextOf(*refusal))};
    const auto& found = std::get<numeric::FoundRoots>(outcome);
    if (found.more)
        run.form.boxes.Tell("Se mostrarán 50 raíces. Para ver más raíces modifica el intervalo de búsqueda.");
    const std::size_t count = found.roots.size();
    Lines lines = {std::to_string(count) + (count == 1 ? " raíz " : " raíces ") + "de la ecuación",
                   run.ShownFormula() + " = 0",
                   "en el intervalo [" + run.Shown(first) + ", " + run.Shown(last) + "]:"};
    for (std::size_t k = 0; k < count; ++k)
        lines.push_back(RootLine(run, k + 1, found.roots[k], found.values[k]));
    run.Report(lines);
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
