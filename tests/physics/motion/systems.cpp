// Systems for a speed and an acceleration, and the quadratic equation.

#include "motion/systems.h"

#include <algorithm>
#include <cmath>

#include "mechanics/motion/equation_systems.h"
#include "motion/motion_kinds.h"
#include "notation/typed_list.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;
using motion::Procedure;

constexpr double kPartFoundAgain = 1e-5;
constexpr double kRegular = 1e-3;

/// The procedure for a pair of shapes, the first equation being the one that has squares.
std::optional<Procedure> ProcedureOf(const StatedEquation& first, const StatedEquation& second) {
    const bool first_has_v = first.v != 0 && first.v_squared == 0;
    if (first.IsLinear() && second.IsLinear())
        return Procedure::SystemVA;
    if (first_has_v || second.a_squared != 0)
        return std::nullopt;
    if (second.IsLinear())
        return first.a_squared == 0 ? Procedure::SystemV2A : Procedure::SystemV2A2A;
    return Procedure::SystemV2A2AV2A;
}

/// The coefficients in the order of the procedure's box.
std::vector<double> CoefficientsOf(Procedure procedure, const StatedEquation& first,
                                   const StatedEquation& second) {
    const double second_v = procedure == Procedure::SystemV2A2AV2A ? second.v_squared : second.v;
    switch (procedure) {
        case Procedure::SystemVA:
            return {first.v, first.a, first.constant, second_v, second.a, second.constant};
        case Procedure::SystemV2A:
            return {first.v_squared, first.a, first.constant, second_v, second.a, second.constant};
        default:
            return {first.v_squared, first.a_squared, first.a,        first.constant,
                    second_v,        second.a,        second.constant};
    }
}

/// The size of an equation's slopes about a solution, as if no part of them vanished there.
double SlopesOf(const StatedEquation& equation, const SpeedPair& at) {
    const double v = std::max(1.0, std::abs(at.v)), a = std::max(1.0, std::abs(at.a));
    return std::hypot(2 * std::abs(equation.v_squared) * v + std::abs(equation.v),
                      2 * std::abs(equation.a_squared) * a + std::abs(equation.a));
}

/// The determinant of the slopes at a solution beside their size: near 0 the solution is double or the two
/// equations are one.
double RegularityAt(const StatedEquation& first, const StatedEquation& second, const SpeedPair& at) {
    const double v1 = 2 * first.v_squared * at.v + first.v, a1 = 2 * first.a_squared * at.a + first.a;
    const double v2 = 2 * second.v_squared * at.v + second.v, a2 = 2 * second.a_squared * at.a + second.a;
    const double size = SlopesOf(first, at) * SlopesOf(second, at);
    return size == 0 ? 0 : std::abs(v1 * a2 - v2 * a1) / size;
}

bool IsKnown(const SpeedPair& found, const SpeedPair& known) {
    const double scale = std::max({1.0, std::abs(known.v), std::abs(known.a)});
    return std::abs(found.v - known.v) <= kPartFoundAgain * scale &&
           std::abs(found.a - known.a) <= kPartFoundAgain * scale;
}

/// The answers of a report, "v!0 = 2, a = 3" in each line; both signs of "v!0 = #mame 2" are answers.
std::vector<SpeedPair> AnswersIn(const std::vector<std::string>& lines) {
    const std::string both_signs = "v!0 = #mame ";
    std::vector<SpeedPair> answers;
    for (std::string line : lines) {
        const std::size_t sign = line.find(both_signs);
        if (sign != std::string::npos)
            line.erase(sign + 6, both_signs.size() - 6);
        const auto v = NumberAfter(line, "v!0");
        const auto a = NumberAfter(line, "a");
        if (!v || !a)
            continue;
        answers.push_back({*v, *a});
        if (sign != std::string::npos)
            answers.push_back({-*v, *a});
    }
    return answers;
}

}  // namespace

Verdict SolveAsSystem(MotionSheet& sheet, const StatedEquation& first, const StatedEquation& second,
                      const SpeedPair& known) {
    // The equation with more squares comes first.
    const auto squares = [](const StatedEquation& each) {
        return (each.a_squared != 0 ? 2 : 0) + (each.v_squared != 0 ? 1 : 0);
    };
    const bool in_order = squares(first) >= squares(second);
    const StatedEquation& one = in_order ? first : second;
    const StatedEquation& other = in_order ? second : first;
    const auto procedure = ProcedureOf(one, other);
    if (!procedure)
        return Right();
    std::string typed;
    for (const double number : CoefficientsOf(*procedure, one, other))
        typed += (typed.empty() ? "" : ", ") + Significant(number, 15).text;
    const bool is_regular = RegularityAt(one, other, known) > kRegular;
    const motion::Step step = sheet.Run(*procedure, typed);
    if (const std::string* message = MessageOf(step))
        return is_regular ? Wrong("refused: " + *message) : Refused(*message);
    const auto lines = ReportOf(step);
    const std::vector<SpeedPair> answers = AnswersIn({lines.begin() + 3, lines.end()});
    bool is_found = false;
    for (const SpeedPair& answer : answers) {
        for (const StatedEquation* equation : {&one, &other}) {
            const Sum sum = equation->For(answer.v, answer.a);
            if (!sum.Vanishes())
                return Wrong("v = " + Digits(answer.v) + ", a = " + Digits(answer.a) + " leaves " +
                             sum.Told());
        }
        is_found = is_found || IsKnown(answer, known);
    }
    return is_found || !is_regular ? Right() : Wrong("the known solution is not found");
}

Verdict PlaySpeedSystem(Problem& problem) {
    Chance& chance = problem.chance;
    const SpeedPair known = {BookNumber(chance, 20), BookNumber(chance, 10)};
    problem.Type("v = " + Digits(known.v) + ", a = " + Digits(known.a));
    const auto coefficient = [&] { return chance.OneIn(6) ? 0.0 : BookNumber(chance, 10); };
    const int shape = chance.Between(0, 3);
    StatedEquation first, second;
    (shape == 0 ? first.v : first.v_squared) = coefficient();
    first.a_squared = shape >= 2 ? coefficient() : 0;
    first.a = coefficient();
    (shape == 3 ? second.v_squared : second.v) = coefficient();
    second.a = coefficient();
    for (StatedEquation* each : {&first, &second})
        each->constant = Significant(each->For(known.v, known.a).Value(), 15).value;
    MotionSheet sheet(problem);
    return SolveAsSystem(sheet, first, second, known);
}

Verdict PlayQuadratic(Problem& problem) {
    Chance& chance = problem.chance;
    double a = BookNumber(chance, 10);
    if (a == 0)
        a = 1;
    const double b = BookNumber(chance, 20);
    const double c = BookNumber(chance, 20);
    MotionSheet sheet(problem);
    const std::string typed =
        Significant(a, 15).text + ", " + Significant(b, 15).text + ", " + Significant(c, 15).text;
    const auto lines = ReportOf(sheet.Run(Procedure::Quadratic, typed));
    const std::string& roots = lines.back();
    const bool is_complex = b * b < 4 * a * c && !IsNearlyZero(b * b - 4 * a * c, b * b);
    if (is_complex != (roots.find("#mame") != std::string::npos))
        return Wrong(roots);
    if (is_complex) {
        const double re = *NumberAfter(roots, "x!1,!2");
        const double im = std::strtod(roots.substr(roots.find("#mame ") + 6).c_str(), nullptr);
        const Sum real = SumOf({a * re * re, -a * im * im, b * re, c});
        const Sum imaginary = SumOf({2 * a * re * im, b * im});
        return real.Vanishes() && imaginary.Vanishes() ? Right() : Wrong(roots);
    }
    for (const char* name : {"x!1", "x!2"}) {
        const auto root = NumberAfter(roots, name);
        if (!root || !SumOf({a * *root * *root, b * *root, c}).Vanishes())
            return Wrong(roots);
    }
    return Right();
}

}  // namespace tavrelo::physics
