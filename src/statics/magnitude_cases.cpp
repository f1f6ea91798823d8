#include "numeric/angles.h"
#include "numeric/number_text.h"
#include "statics/coefficient_tables.h"
#include "statics/equation_text.h"
#include "statics/equilibrium_cases.h"
#include "statics/particle_report.h"
#include "statics/solve2.h"
#include "statics/substitution.h"
#include "vectors/symbols.h"

namespace tavrelo::statics {
namespace {

using numeric::CosD;
using numeric::SinD;

constexpr const char* kSameUnknown = "Misma incógnita en ambas ecuaciones.";

NothingToSolve ReportKnownSums(const ForceSums& sums, int decimals) {
    return {{"No hay incógnitas.", SumLine("x", numeric::RoundedText(sums.x.known, decimals)),
             SumLine("y", numeric::RoundedText(sums.y.known, decimals))}};
}

Report LinearReport(const ForceSums& sums, const TwoUnknowns& unknowns, double first, double second) {
    const std::string u = vectors::SubscriptName(unknowns.first);
    const std::string w = vectors::SubscriptName(unknowns.second);
    return {{{{unknowns.a, u}, {unknowns.b, w}}, sums.x.known},
            {{{unknowns.d, u}, {unknowns.e, w}}, sums.y.known},
            {{unknowns.first, first, ""}, {unknowns.second, second, ""}}};
}

}  // namespace

Equilibrium SolveEquilibrant(const ForceTable& table, const ForceSums& sums, int decimals) {
    const UnknownTerm unknown = ReadUnknown(sums.x.first);
    if (!unknown.HasBoth())
        return Refusal{kCaseNotSolved};
    const double p = numeric::CheckedDivide(-sums.x.known, sums.x.first_coef);
    const double q = numeric::CheckedDivide(-sums.y.known, sums.y.first_coef);
    const double magnitude = numeric::Finite(numeric::Hypot(p, q));
    const double direction = numeric::AngleOf(p, q);
    ForceTable solved = table;
    Substitute(solved, [&](const std::string& text) -> std::optional<double> {
        const bool is_cos = ReadUnknown(text).function == AngleFunction::Cos;
        return magnitude * (is_cos ? CosD(direction) : SinD(direction));
    });
    const Report report = {
        {{{sums.x.first_coef, AngleLabel(unknown.magnitude, kCos, unknown.angle)}}, sums.x.known},
        {{{sums.y.first_coef, AngleLabel(unknown.magnitude, kSen, unknown.angle)}}, sums.y.known},
        {{unknown.magnitude, magnitude, ""}, {unknown.angle, direction, kDegrees}}};
    return Finish(solved, report, {}, decimals);
}

Equilibrium SolveMagnitudes(const ForceTable& table, const ForceSums& sums, int decimals) {
    if (sums.x.unknowns == 0 && sums.y.unknowns == 0)
        return ReportKnownSums(sums, decimals);
    if (sums.x.unknowns == 1 && sums.y.unknowns == 1 && SameUnknown(sums.x.first, sums.y.first))
        return Refusal{kSameUnknown};
    const TwoUnknowns unknowns = MagnitudeCoefficients(sums);
    const auto solved =
        Solve2(kLinear, unknowns.a, unknowns.b, sums.x.known, unknowns.d, unknowns.e, sums.y.known);
    if (const auto* refusal = std::get_if<Refusal>(&solved))
        return *refusal;
    const auto& values = std::get<std::vector<double>>(solved);
    ForceTable result = table;
    Substitute(result, [&](const std::string& text) -> std::optional<double> {
        if (SameUnknown(text, unknowns.first))
            return values[0];
        if (SameUnknown(text, unknowns.second))
            return values[1];
        return {};
    });
    return Finish(result, LinearReport(sums, unknowns, values[0], values[1]), {}, decimals);
}

}  // namespace tavrelo::statics
