#include "statics/body_solver.h"

#include <optional>
#include <string_view>
#include <utility>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/linear_systems.h"
#include "numeric/number_text.h"
#include "statics/body_angle.h"
#include "statics/substitution.h"
#include "statics/unknowns.h"
#include "vectors/symbols.h"

namespace tavrelo::statics {
namespace {

using numeric::CheckedMultiply;

Refusal CountsDiffer(std::size_t unknowns, std::size_t equations) {
    return {"Son " + std::to_string(unknowns) + " incógnitas y " + std::to_string(equations) +
            " ecuaciones."};
}

// Place of an unknown in the list that holds it, from 0.
std::size_t PlaceOf(const std::vector<std::string>& unknowns, std::string_view name) {
    std::size_t place = 0;
    while (!vectors::SameSymbol(unknowns[place], name))
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
        return Refusal{std::string(TextOf(outcome))};
    BodyResults results;
    for (std::size_t i = 0; i < n; ++i)
        results.push_back({system.unknowns[i], values[i]});
    return results;
}

std::string ResultLine(const BodyResults& results, int decimals) {
    std::string line;
    for (const FoundUnknown& found : results)
        line += (line.empty() ? "" : ", ") + found.name + " = " + numeric::RoundedText(found.value, decimals);
    return line;
}

std::optional<double> ValueOf(const BodyResults& results, std::string_view name, bool is_angle) {
    for (const FoundUnknown& found : results)
        if (found.is_angle == is_angle && vectors::SameSymbol(found.name, name))
            return found.value;
    return {};
}

// What the coefficient of an unknown is to be multiplied by; nothing while a part of it is unknown.
std::optional<double> FactorOf(const BodyResults& results, const std::string& text) {
    const UnknownTerm unknown = ReadUnknown(text);
    if (!unknown.HasAngle())
        return ValueOf(results, unknown.magnitude, false);
    const auto magnitude = unknown.HasBoth() ? ValueOf(results, unknown.magnitude, false) : 1.0;
    const auto angle = ValueOf(results, unknown.angle, true);
    if (!magnitude || !angle)
        return {};
    const bool is_cos = unknown.function == AngleFunction::Cos;
    return CheckedMultiply(*magnitude, is_cos ? numeric::CosD(*angle) : numeric::SinD(*angle));
}

void UpdateCouple(BodyForce& row, const BodyResults& results) {
    if (!row.HasCouple() || numeric::IsNum(row.couple))
        return;
    const vectors::FactoredSymbol unknown = vectors::SplitFactor(row.couple.Text());
    if (const auto value = ValueOf(results, unknown.symbol, false)) {
        row.couple = CheckedMultiply(unknown.factor, *value);
        row.couple_colour = kKnown;
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
        Substitute(row.force, [&](const std::string& text) { return FactorOf(results, text); });
        MarkSolved(row.force, decimals);
        UpdateCouple(row, results);
    }
    forces = std::move(updated);
}

}  // namespace tavrelo::statics
