#include "mechanics/particle/magnitude_cases.h"

#include "mechanics/forces/found_forces.h"
#include "mechanics/particle/coefficient_tables.h"
#include "mechanics/particle/particle_report.h"
#include "mechanics/particle/two_equations.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::particle {
namespace {

using notation::Force;
using notation::UnknownTerm;

constexpr const char* kSameUnknown = "Misma incógnita en ambas ecuaciones.";

NothingToSolve ReportKnownSums(const forces::ForceSums& sums, int decimals) {
    return {{"No hay incógnitas.", SumLine("x", text::RoundedText(sums.x.known, decimals)),
             SumLine("y", text::RoundedText(sums.y.known, decimals))}};
}

std::vector<Force> WithValues(std::span<const Force> forces, const forces::FactorOf& factor_of) {
    std::vector<Force> found(forces.begin(), forces.end());
    for (Force& force : found)
        forces::PutFoundValues(force, factor_of);
    return found;
}

// The solution, unless rounding has made of nearly parallel forces one that does not balance them.
Equilibrium Checked(std::vector<Force> found, const Report& report, int decimals) {
    if (!forces::AreBalanced(found))
        return text::Refusal{kNoEquilibrium};
    return Finish(std::move(found), report, {}, decimals);
}

Report LinearReport(const forces::ForceSums& sums, const TwoUnknowns& unknowns, const Root& root) {
    return {{{{unknowns.a, unknowns.first}, {unknowns.b, unknowns.second}}, sums.x.known},
            {{{unknowns.d, unknowns.first}, {unknowns.e, unknowns.second}}, sums.y.known},
            {{{TextOf(unknowns.first), root.first}, {TextOf(unknowns.second), root.second}}}};
}

}  // namespace

Equilibrium SolveEquilibrant(std::span<const Force> forces, const forces::ForceSums& sums, int decimals) {
    const UnknownTerm& unknown = sums.x.first.unknown;
    if (!unknown.HasBoth())
        return text::Refusal{kCaseNotSolved};
    const double p = numeric::CheckedDivide(-sums.x.known, sums.x.first.coef);
    const double q = numeric::CheckedDivide(-sums.y.known, sums.y.first.coef);
    const double magnitude = numeric::Finite(numeric::Hypot(p, q));
    const double direction = numeric::AngleOf(p, q);
    std::vector<Force> found = WithValues(forces, [&](const UnknownTerm& term) {
        return magnitude * (term.IsCos() ? numeric::CosD(direction) : numeric::SinD(direction));
    });
    const Report report = {{{sums.x.first}, sums.x.known},
                           {{sums.y.first}, sums.y.known},
                           {{{unknown.magnitude, magnitude}, {unknown.angle, direction, kDegrees}}}};
    return Checked(std::move(found), report, decimals);
}

Equilibrium SolveMagnitudes(std::span<const Force> forces, const forces::ForceSums& sums, int decimals) {
    if (sums.x.unknowns == 0 && sums.y.unknowns == 0)
        return ReportKnownSums(sums, decimals);
    if (sums.x.unknowns == 1 && sums.y.unknowns == 1 &&
        SameUnknown(sums.x.first.unknown, sums.y.first.unknown))
        return text::Refusal{kSameUnknown};
    const TwoUnknowns unknowns = MagnitudeCoefficients(sums);
    const auto solved =
        SolveTwoMagnitudes({unknowns.a, unknowns.b, sums.x.known, unknowns.d, unknowns.e, sums.y.known});
    if (const auto* refusal = std::get_if<text::Refusal>(&solved))
        return *refusal;
    const Root& root = std::get<Root>(solved);
    std::vector<Force> found = WithValues(forces, [&](const UnknownTerm& term) -> std::optional<double> {
        if (SameUnknown(term, unknowns.first))
            return root.first;
        if (SameUnknown(term, unknowns.second))
            return root.second;
        return {};
    });
    return Checked(std::move(found), LinearReport(sums, unknowns, root), decimals);
}

}  // namespace tavrelo::mechanics::particle
