#include "mechanics/forces/equation_text.h"
#include "mechanics/forces/substitution.h"
#include "mechanics/particle/coefficient_tables.h"
#include "mechanics/particle/equilibrium_cases.h"
#include "mechanics/particle/particle_report.h"
#include "mechanics/particle/solve2.h"
#include "numeric/angles.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

using numeric::CosD;
using numeric::SinD;

constexpr const char* kSameUnknown = "Misma incógnita en ambas ecuaciones.";

NothingToSolve ReportKnownSums(const mechanics::forces::ForceSums& sums, int decimals) {
    return {{"No hay incógnitas.", SumLine("x", text::RoundedText(sums.x.known, decimals)),
             SumLine("y", text::RoundedText(sums.y.known, decimals))}};
}

Report LinearReport(const mechanics::forces::ForceSums& sums, const TwoUnknowns& unknowns, double first,
                    double second) {
    const std::string u = text::SubscriptName(unknowns.first);
    const std::string w = text::SubscriptName(unknowns.second);
    return {{{{unknowns.a, u}, {unknowns.b, w}}, sums.x.known},
            {{{unknowns.d, u}, {unknowns.e, w}}, sums.y.known},
            {{unknowns.first, first, ""}, {unknowns.second, second, ""}}};
}

}  // namespace

Equilibrium SolveEquilibrant(const mechanics::forces::ForceTable& table,
                             const mechanics::forces::ForceSums& sums, int decimals) {
    const mechanics::forces::UnknownTerm unknown = mechanics::forces::ReadUnknown(sums.x.first);
    if (!unknown.HasBoth())
        return text::Refusal{kCaseNotSolved};
    const double p = numeric::CheckedDivide(-sums.x.known, sums.x.first_coef);
    const double q = numeric::CheckedDivide(-sums.y.known, sums.y.first_coef);
    const double magnitude = numeric::Finite(numeric::Hypot(p, q));
    const double direction = numeric::AngleOf(p, q);
    mechanics::forces::ForceTable solved = table;
    mechanics::forces::Substitute(solved, [&](const std::string& text) -> std::optional<double> {
        const bool is_cos =
            mechanics::forces::ReadUnknown(text).function == mechanics::forces::AngleFunction::Cos;
        return magnitude * (is_cos ? CosD(direction) : SinD(direction));
    });
    const Report report = {
        {{{sums.x.first_coef,
           mechanics::forces::AngleLabel(unknown.magnitude, mechanics::forces::kCos, unknown.angle)}},
         sums.x.known},
        {{{sums.y.first_coef,
           mechanics::forces::AngleLabel(unknown.magnitude, mechanics::forces::kSen, unknown.angle)}},
         sums.y.known},
        {{unknown.magnitude, magnitude, ""}, {unknown.angle, direction, kDegrees}}};
    return Finish(solved, report, {}, decimals);
}

Equilibrium SolveMagnitudes(const mechanics::forces::ForceTable& table,
                            const mechanics::forces::ForceSums& sums, int decimals) {
    if (sums.x.unknowns == 0 && sums.y.unknowns == 0)
        return ReportKnownSums(sums, decimals);
    if (sums.x.unknowns == 1 && sums.y.unknowns == 1 &&
        mechanics::forces::SameUnknown(sums.x.first, sums.y.first))
        return text::Refusal{kSameUnknown};
    const TwoUnknowns unknowns = MagnitudeCoefficients(sums);
    const auto solved =
        Solve2(kLinear, unknowns.a, unknowns.b, sums.x.known, unknowns.d, unknowns.e, sums.y.known);
    if (const auto* refusal = std::get_if<text::Refusal>(&solved))
        return *refusal;
    const auto& values = std::get<std::vector<double>>(solved);
    mechanics::forces::ForceTable result = table;
    mechanics::forces::Substitute(result, [&](const std::string& text) -> std::optional<double> {
        if (mechanics::forces::SameUnknown(text, unknowns.first))
            return values[0];
        if (mechanics::forces::SameUnknown(text, unknowns.second))
            return values[1];
        return {};
    });
    return Finish(result, LinearReport(sums, unknowns, values[0], values[1]), {}, decimals);
}

}  // namespace tavrelo::mechanics::particle
