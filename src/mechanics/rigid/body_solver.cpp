#include "mechanics/rigid/body_solver.h"

#include <optional>
#include <string_view>
#include <utility>

#include "mechanics/forces/substitution.h"
#include "mechanics/forces/unknowns.h"
#include "mechanics/rigid/body_angle.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/linear_systems.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::rigid {
namespace {

using numeric::CheckedMultiply;

text::Refusal CountsDiffer(std::size_t unknowns, std::size_t equations) {
    return {"Son " + std::to_string(unknowns) + " incógnitas y " + std::to_string(equations) +
            " ecuaciones."};
}

// Place of an unknown in the list that holds it, from 0.
std::size_t PlaceOf(const std::vector<std::string>& unknowns, std::string_view name) {
    std::size_t place = 0;
    while (!text::SameSymbol(unknowns[place], name))
        ++place;
    return place;
}

BodyOutcome SolveLinearEquations(const BodyEquations& system) {
    const std::size_t n = system.unknowns.size();
    if (n != system.equations.size())
        return CountsDiffer(n, system.equations.size());
    numeric::SquareMatrix matrix(n);
    std::vector<double> values(n);
    for (std::size_t row = 0; row < n; ++row) {
        for (const BodyTerm& term : system.equations[row].terms)
            matrix(row, PlaceOf(system.unknowns, term.symbol)) = term.coef;
        values[row] = -system.equations[row].constant;
    }
    const numeric::LinearOutcome outcome = numeric::SolveLinear(matrix, values);
    if (outcome != numeric::LinearOutcome::Done)
        return text::Refusal{std::string(TextOf(outcome))};
    BodyResults results;
    for (std::size_t i = 0; i < n; ++i)
        results.push_back({system.unknowns[i], values[i]});
    return results;
}

std::string ResultLine(const BodyResults& results, int decimals) {
    std::string line;
    for (const FoundUnknown& found : results)
        line += (line.empty() ? "" : ", ") + found.name + " = " + text::RoundedText(found.value, decimals);
    return line;
}

std::optional<double> ValueOf(const BodyResults& results, std::string_view name, bool is_angle) {
    for (const FoundUnknown& found : results)
        if (found.is_angle == is_angle && text::SameSymbol(found.name, name))
            return found.value;
    return {};
}

// What the coefficient of an unknown is to be multiplied by; nothing while a part of it is unknown.
std::optional<double> FactorOf(const BodyResults& results, const std::string& text) {
    const mechanics::forces::UnknownTerm unknown = mechanics::forces::ReadUnknown(text);
    if (!unknown.HasAngle())
        return ValueOf(results, unknown.magnitude, false);
    const auto magnitude = unknown.HasBoth() ? ValueOf(results, unknown.magnitude, false) : 1.0;
    const auto angle = ValueOf(results, unknown.angle, true);
    if (!magnitude || !angle)
        return {};
    const bool is_cos = unknown.function == mechanics::forces::AngleFunction::Cos;
    return CheckedMultiply(*magnitude, is_cos ? numeric::CosD(*angle) : numeric::SinD(*angle));
}

void UpdateCouple(BodyForce& row, const BodyResults& results) {
    if (!row.HasCouple() || text::IsNum(row.couple))
        return;
    const text::FactoredSymbol unknown = text::SplitFactor(row.couple.Text());
    if (const auto value = ValueOf(results, unknown.symbol, false)) {
        row.couple = CheckedMultiply(unknown.factor, *value);
        row.couple_colour = mechanics::forces::kKnown;
    }
}

}  // namespace

BodyOutcome SolveEquations(const BodyEquations& equations, std::size_t bodies) {
    if (const auto refusal = CheckAngles(equations, bodies))
        return *refusal;
    return equations.angles.empty() ? SolveLinearEquations(equations) : SolveWithAngle(equations);
}

std::string QuestionBetween(const BodyChoice& choice, int decimals) {
    return "Solución 1:\n" + ResultLine(choice[0], decimals) + "\nSolución 2:\n" +
           ResultLine(choice[1], decimals) +
           "\nPara escoger la primera solución oprime \"Sí\", para la segunda oprime \"No\".";
}

void UpdateBodyForces(BodyForces& forces, const BodyResults& results, int decimals) {
    BodyForces updated = forces;
    for (BodyForce& row : updated) {
        mechanics::forces::Substitute(row.force,
                                      [&](const std::string& text) { return FactorOf(results, text); });
        mechanics::forces::MarkSolved(row.force, decimals);
        UpdateCouple(row, results);
    }
    forces = std::move(updated);
}

}  // namespace tavrelo::mechanics::rigid
