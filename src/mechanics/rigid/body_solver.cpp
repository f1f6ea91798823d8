#include "mechanics/rigid/body_solver.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "mechanics/forces/found_forces.h"
#include "mechanics/rigid/equilibrium_check.h"
#include "mechanics/rigid/unknown_angle.h"
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

// Place of a force or couple in the list of unknowns, from 0; none for a stranger.
std::optional<std::size_t> PlaceOf(const std::vector<std::string>& unknowns, std::string_view name) {
    const auto found = std::ranges::find_if(
        unknowns, [&](const std::string& known) { return text::SameSymbol(known, name); });
    if (found == unknowns.end())
        return {};
    return static_cast<std::size_t>(found - unknowns.begin());
}

BodyOutcome SolveLinearEquations(const BodyEquations& system) {
    const std::size_t n = system.unknowns.size();
    if (n != system.equations.size())
        return CountsDiffer(n, system.equations.size());
    numeric::SquareMatrix matrix(n);
    std::vector<double> values(n);
    for (std::size_t row = 0; row < n; ++row) {
        for (const BodyTerm& term : system.equations[row].terms)
            if (const auto place = PlaceOf(system.unknowns, term.unknown.magnitude))
                matrix(row, *place) = term.coef;
        values[row] = -system.equations[row].constant;
    }
    const numeric::LinearOutcome outcome = numeric::SolveIndependent(matrix, values);
    if (outcome != numeric::LinearOutcome::Done)
        return text::Refusal{std::string(TextOf(outcome))};
    BodyResults results;
    for (std::size_t i = 0; i < n; ++i)
        results.push_back({system.unknowns[i], values[i]});
    if (!HoldsWith(system, results))
        return text::Refusal{std::string(TextOf(numeric::LinearOutcome::SystemNotSolved))};
    return results;
}

void UpdateCouple(Couple& couple, const BodyResults& results) {
    if (couple.IsKnown())
        return;
    if (const auto value = ValueOf(results, couple.symbol, false))
        couple.value = CheckedMultiply(couple.sign, *value);
}

}  // namespace

BodyOutcome SolveEquations(const BodyEquations& equations, std::size_t bodies) {
    if (const auto refusal = CheckAngles(equations, bodies))
        return *refusal;
    return equations.angles.empty() ? SolveLinearEquations(equations) : SolveWithAngle(equations);
}

BodyForces WithResults(BodyForces forces, const BodyResults& results) {
    const auto factor_of = [&](const notation::UnknownTerm& unknown) { return FactorOf(results, unknown); };
    for (BodyForce& row : forces) {
        if (row.force) {
            forces::PutFoundValues(*row.force, factor_of);
            forces::CompleteFoundForce(*row.force);
        }
        if (row.couple)
            UpdateCouple(*row.couple, results);
    }
    return forces;
}

}  // namespace tavrelo::mechanics::rigid
