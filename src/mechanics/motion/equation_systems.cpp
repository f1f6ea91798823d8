#include "mechanics/motion/equation_systems.h"

#include <cmath>
#include <cstddef>
#include <optional>

#include "mechanics/motion/holding.h"
#include "notation/typed_list.h"
#include "numeric/checked.h"
#include "numeric/polynomials.h"
#include "numeric/real_roots.h"
#include "text/number_text.h"
#include "text/signed_sum.h"

namespace tavrelo::mechanics::motion {

namespace {

using numeric::CheckedDivide;
using numeric::Finite;
using numeric::RealRoots;
using text::Refusal;

using Lines = std::vector<std::string>;
using Solutions = std::vector<SystemSolution>;

/// One equation: v v0 + v_squared v0^2 + a a + a_squared a^2 = right.
struct UnknownTerms {
    double v_squared = 0, v = 0, a_squared = 0, a = 0, right = 0;
};
struct System {
    UnknownTerms first, second;
};

/// The unknowns of a line in the order of their coefficients.
using Columns = std::vector<double UnknownTerms::*>;
struct ShapeRow {
    Columns first, second;
};

const ShapeRow& RowOf(SystemShape shape) {
    using Terms = UnknownTerms;
    static const Columns kVA = {&Terms::v, &Terms::a, &Terms::right};
    static const Columns kV2A = {&Terms::v_squared, &Terms::a, &Terms::right};
    static const Columns kV2A2A = {&Terms::v_squared, &Terms::a_squared, &Terms::a, &Terms::right};
    static const ShapeRow kRows[] = {{kVA, kVA}, {kV2A, kVA}, {kV2A2A, kVA}, {kV2A2A, kV2A}};
    return kRows[static_cast<std::size_t>(shape)];
}

System SystemOf(SystemShape shape, const std::vector<double>& coefficients) {
    if (coefficients.size() != CoefficientCount(shape))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "coefficients of a system");
    System system;
    std::size_t next = 0;
    for (double UnknownTerms::*const column : RowOf(shape).first)
        system.first.*column = coefficients[next++];
    for (double UnknownTerms::*const column : RowOf(shape).second)
        system.second.*column = coefficients[next++];
    return system;
}

bool Holds(const UnknownTerms& line, double v, double a) {
    return TermsCancel(
        {line.v_squared * v * v, line.v * v, line.a_squared * a * a, line.a * a, 0.0 - line.right});
}

void AddSolution(Solutions& solutions, const System& system, const SystemSolution& solution) {
    Finite(solution.v0);
    Finite(solution.a);
    if (Holds(system.first, solution.v0, solution.a) && Holds(system.second, solution.v0, solution.a))
        solutions.push_back(solution);
}

/// v0 of which the square is known.
std::optional<SystemSolution> FromSquare(double v_squared, double a) {
    if (v_squared < 0)
        return std::nullopt;
    return SystemSolution{std::sqrt(v_squared), a, v_squared > 0};
}

// The eliminations, one for each shape. In their names 1 is the first equation, 2 the second.

/// Nothing when the determinant is 0.
std::optional<Solutions> SolveByCramer(const System& system) {
    const auto& [e1, e2] = system;
    const double determinant = numeric::CleanDifference(Finite(e1.v * e2.a), Finite(e1.a * e2.v));
    if (determinant == 0)
        return std::nullopt;
    const double v = CheckedDivide(Finite(e1.right * e2.a - e1.a * e2.right), determinant);
    const double a = CheckedDivide(Finite(e1.v * e2.right - e1.right * e2.v), determinant);
    Solutions solutions;
    AddSolution(solutions, system, {v, a, false});
    return solutions;
}

/// a from 2 leaves a quadratic in v0; when 2 has no a, it tells v0.
Solutions SolveV2A(const System& system) {
    const auto& [e1, e2] = system;
    Solutions solutions;
    if (e2.a == 0) {
        const double v = CheckedDivide(e2.right, e2.v);
        AddSolution(solutions, system,
                    {v, CheckedDivide(Finite(e1.right - e1.v_squared * v * v), e1.a), false});
        return solutions;
    }
    const double a_by_v = CheckedDivide(e2.v, e2.a), a_alone = CheckedDivide(e2.right, e2.a);
    for (const double v :
         RealRoots(e1.v_squared, Finite(0.0 - e1.a * a_by_v), Finite(e1.a * a_alone - e1.right)))
        AddSolution(solutions, system, {v, Finite(a_alone - a_by_v * v), false});
    return solutions;
}

/// v0 from 2 leaves a quadratic in a; when 2 has no v0, it tells a, and 1 the square of v0.
Solutions SolveV2A2A(const System& system) {
    const auto& [e1, e2] = system;
    Solutions solutions;
    if (e2.v == 0) {
        const double a = CheckedDivide(e2.right, e2.a);
        const double rest = Finite(e1.right - e1.a_squared * a * a - e1.a * a);
        if (const auto solution = FromSquare(CheckedDivide(rest, e1.v_squared), a))
            AddSolution(solutions, system, *solution);
        return solutions;
    }
    const double v_by_a = CheckedDivide(e2.a, e2.v), v_alone = CheckedDivide(e2.right, e2.v);
    const double square =
        numeric::CleanDifference(Finite(e1.v_squared * v_by_a * v_by_a), 0.0 - e1.a_squared);
    const double linear = Finite(e1.a - 2 * e1.v_squared * v_by_a * v_alone);
    for (const double a : RealRoots(square, linear, Finite(e1.v_squared * v_alone * v_alone - e1.right)))
        AddSolution(solutions, system, {Finite(v_alone - v_by_a * a), a, false});
    return solutions;
}

/// The square of v0 from 2 leaves a quadratic in a.
Solutions SolveTwoSquares(const System& system) {
    const auto& [e1, e2] = system;
    const double square_by_a = CheckedDivide(e2.a, e2.v_squared);
    const double square_alone = CheckedDivide(e2.right, e2.v_squared);
    const double linear = numeric::CleanDifference(e1.a, Finite(e1.v_squared * square_by_a));
    Solutions solutions;
    for (const double a : RealRoots(e1.a_squared, linear, Finite(e1.v_squared * square_alone - e1.right)))
        if (const auto solution =
                FromSquare(numeric::CleanDifference(square_alone, Finite(square_by_a * a)), a))
            AddSolution(solutions, system, *solution);
    return solutions;
}

// Reports.

/// A sum that begins its line: without the blank before a negative first term.
std::string SumText(std::initializer_list<text::SumTerm> terms, int decimals) {
    const std::vector<text::SumTerm> list(terms);
    return std::string(notation::WithoutBlanks(text::SignedSum(list, decimals)));
}

std::string EquationLine(const UnknownTerms& line, int decimals) {
    return SumText({{line.v_squared, "v!0¡2"}, {line.v, "v!0"}, {line.a_squared, "a¡2"}, {line.a, "a"}},
                   decimals) +
           " = " + text::NumText(line.right, decimals).Text();
}

std::string SolutionText(const SystemSolution& solution, int decimals) {
    return std::string("v!0 = ") + (solution.both_signs ? "#mame " : "") +
           text::RoundedText(solution.v0, decimals) + ", a = " + text::RoundedText(solution.a, decimals);
}

/// Equal roots whose discriminant rounding has moved off 0 are shown as equal.
numeric::QuadraticRoots RootsOf(double a, double b, double c) {
    const numeric::QuadraticRoots roots = numeric::QuadRoots(a, b, c);
    const numeric::RealRootList distinct = RealRoots(a, b, c);
    return distinct.size() == 1 ? numeric::QuadraticRoots{distinct[0], distinct[0], true} : roots;
}

std::string RootsLine(const numeric::QuadraticRoots& roots, int decimals) {
    const std::string first = text::RoundedText(roots.first, decimals);
    if (roots.real)
        return "x!1 = " + first + ", x!2 = " + text::RoundedText(roots.second, decimals);
    return "x!1,!2 = " + first + " #mame " + text::RoundedText(std::abs(roots.second), decimals) + " i";
}

}  // namespace

std::size_t CoefficientCount(SystemShape shape) {
    return RowOf(shape).first.size() + RowOf(shape).second.size();
}

std::variant<Refusal, Solutions> SolveSystem(SystemShape shape, const std::vector<double>& coefficients) {
    const System system = SystemOf(shape, coefficients);
    Solutions solutions;
    if (shape == SystemShape::VA_VA) {
        const std::optional<Solutions> found = SolveByCramer(system);
        if (!found)
            return Refusal{std::string(kZeroSystem)};
        solutions = *found;
    } else {
        solutions = shape == SystemShape::V2A_VA     ? SolveV2A(system)
                    : shape == SystemShape::V2A2A_VA ? SolveV2A2A(system)
                                                     : SolveTwoSquares(system);
    }
    if (solutions.empty())
        return Refusal{std::string(kNoSystemSolution)};
    return solutions;
}

std::variant<Refusal, Lines> ReportSystem(SystemShape shape, std::string_view typed, int decimals) {
    const auto coefficients = notation::ReadNumbers(typed, CoefficientCount(shape));
    if (const auto* refusal = std::get_if<Refusal>(&coefficients))
        return *refusal;
    const auto& numbers = std::get<std::vector<double>>(coefficients);
    const auto solved = SolveSystem(shape, numbers);
    if (const auto* refusal = std::get_if<Refusal>(&solved))
        return *refusal;
    const System system = SystemOf(shape, numbers);
    Lines lines = {"Resolver el sistema:", EquationLine(system.first, decimals),
                   EquationLine(system.second, decimals)};
    const char* before = "";
    for (const SystemSolution& solution : std::get<Solutions>(solved)) {
        lines.push_back(before + SolutionText(solution, decimals));
        before = "o bien   ";
    }
    return lines;
}

std::variant<Refusal, Lines> ReportQuadratic(std::string_view typed, int decimals) {
    constexpr std::size_t kCoefficients = 3;
    const auto coefficients = notation::ReadNumbers(typed, kCoefficients);
    if (const auto* refusal = std::get_if<Refusal>(&coefficients))
        return *refusal;
    const auto& numbers = std::get<std::vector<double>>(coefficients);
    const double a = numbers[0], b = numbers[1], c = numbers[2];
    const numeric::QuadraticRoots roots = RootsOf(a, b, c);
    return Lines{"Resolver la ecuación cuadrática:",
                 SumText({{a, "x¡2"}, {b, "x"}, {c, 1}}, decimals) + " = 0", RootsLine(roots, decimals)};
}

}  // namespace tavrelo::mechanics::motion
