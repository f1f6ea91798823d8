#include "mechanics/motion/acceleration_cases.h"

#include <algorithm>
#include <cmath>

#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion::acceleration {
namespace {

using numeric::CleanDifference;

constexpr const char* kBaseTime = "Estás sustituyendo el tiempo del punto base.";
constexpr const char* kBasePosition = "Estás sustituyendo la posición del punto base.";
constexpr const char* kSameTimes = "Estás igualando los tiempos inicial y final.";
constexpr const char* kNoDuration = "Estás poniendo igual a cero la duración \"dt\" del intervalo.";
constexpr const char* kNoDisplacement = "Estás poniendo el desplazamiento \"dx\" igual a cero.";
constexpr const char* kUniform = "Ninguna de estas subrutinas es aplicable al movimiento uniforme.";
constexpr const char* kNoValue = "No existe valor de aceleración\nque cumpla las condiciones dadas.";
constexpr const char* kInconsistent = "No existe solución. Datos inconsistentes.";
constexpr const char* kNoSuchSet = "No existe solución para la aceleración.";

Finding Refused(std::string text) { return text::Refusal{std::move(text)}; }

/// The data do not depend on the acceleration; `relation` is what they must fulfil without it.
Finding Arbitrary(const ParameterCase& each, std::string_view relation) {
    return Refused("Existe solución solamente si\n" + each.PlainRelation(relation) +
                   "\nen cuyo caso la aceleración es arbitraria.");
}

/// a from divisor * a = sum of `terms`; without divisor either any value will do or `none` is told.
Finding Divided(const ParameterCase& each, const std::vector<double>& terms, double divisor,
                std::string_view relation, const char* none = kInconsistent) {
    double sum = 0.0;
    double largest = 0.0;
    for (const double term : terms) {
        sum += term;
        largest = std::max(largest, std::abs(term));
    }
    if (divisor == 0.0)
        return std::abs(sum) <= kIdentityTolerance * largest ? Arbitrary(each, relation) : Refused(none);
    return Candidates{sum / divisor};
}

/// What both rows with known speeds refuse.
std::optional<text::Refusal> CheckSpeeds(const ParameterCase& each) {
    if (each.Relation() == 1.0)
        return text::Refusal{kFactorOneInProcedure};
    if (each.FromStart() == 0.0)
        return text::Refusal{kUniform};
    return std::nullopt;
}

}  // namespace

Finding OfTimePosition(const ParameterCase& each) {
    const double d = each.D();
    if (d == 0.0)
        return Refused(kBaseTime);
    return Candidates{2.0 * (each.Relation() - each.equations.x - each.equations.v * d) / (d * d)};
}

Finding OfTimeSpeed(const ParameterCase& each) {
    if (each.D() == 0.0)
        return Refused(kBaseTime);
    return Candidates{(each.Relation() - each.equations.v) / each.D()};
}

Finding OfPositionSpeed(const ParameterCase& each) {
    if (each.Q() == 0.0)
        return Refused(kBasePosition);
    const double v = each.Relation();
    return Candidates{CleanDifference(v * v, each.equations.v * each.equations.v) / (2.0 * each.Q())};
}

Finding OfTimesDx(const ParameterCase& each) {
    const double dt = each.FromStart();
    if (dt == 0.0)
        return Refused(kSameTimes);
    if (each.Relation() == 0.0)
        return Refused(kNoDisplacement);
    const double divisor = 0.5 * CleanDifference(each.Df() * each.Df(), each.Di() * each.Di());
    return Divided(each, {each.Relation(), -each.equations.v * dt}, divisor, "xf - xi = vn*(tf - ti)",
                   kNoValue);
}

Finding OfPositionsDt(const ParameterCase& each) {
    const double h = each.Relation();
    if (h == 0.0)
        return Refused(kNoDuration);
    const double mean = each.FromStart() / h;
    const double v = each.equations.v;
    return CandidatesOf(
        numeric::RealRoots(0.25 * h * h, -(each.P() + each.Q()), CleanDifference(mean * mean, v * v)));
}

Finding OfPositionsDv(const ParameterCase& each) {
    const double dv = each.Relation();
    if (dv == 0.0)
        return Refused(kUniform);
    const double dt_per_a = each.FromStart() / dv;
    const double v = each.equations.v;
    return CandidatesOf(numeric::RealRoots(dt_per_a * dt_per_a, -(each.P() + each.Q()),
                                           CleanDifference(0.25 * dv * dv, v * v)));
}

Finding OfTimesXFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    const double di = each.Di();
    const double df = each.Df();
    const double v = each.equations.v;
    return Divided(each, {each.equations.x * (c - 1.0), v * c * di, -v * df},
                   0.5 * CleanDifference(df * df, c * di * di), "xn*(1 - C) = vn*(C*(ti - tn) - (tf - tn))");
}

Finding OfTimesVFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    return Divided(each, {each.equations.v * (c - 1.0)}, CleanDifference(each.Df(), c * each.Di()),
                   "vn*(C - 1) = 0");
}

Finding OfPositionsTFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOneInProcedure);
    if (c == 0.0)
        return Refused(kFactorZero);
    if (each.equations.t != 0.0)
        return Refused(kOnlyAtZero);
    const double p = each.P();
    const double v = each.equations.v;
    const double speed_part = CleanDifference(each.Q(), c * c * p);
    if (v == 0.0)
        return speed_part == 0.0 ? Arbitrary(each, "xf - xn = C*C*(xi - xn)") : Refused(kInconsistent);
    const double u = speed_part / (c * (1.0 - c) * v);
    if (u == 0.0)
        return p == 0.0 ? Arbitrary(each, "xi = xf = xn") : Refused(kInconsistent);
    return Candidates{2.0 * (p - v * u) / (u * u)};
}

Finding OfPositionsVFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOneInProcedure);
    const double v_squared = each.equations.v * each.equations.v;
    return Divided(each, {v_squared * (c * c - 1.0)}, 2.0 * CleanDifference(each.Q(), c * c * each.P()),
                   "vn*vn*(C*C - 1) = 0");
}

Finding OfSpeedsTFactor(const ParameterCase& each) {
    if (const auto refusal = CheckSpeeds(each))
        return *refusal;
    const double c = each.Relation();
    const SetValues& s = each.given.values;
    const double v = each.equations.v;
    return Divided(each, {c * s.i, -c * v, -s.f, v}, each.equations.t * (1.0 - c), "vf - vn = C*(vi - vn)");
}

Finding OfSpeedsXFactor(const ParameterCase& each) {
    if (const auto refusal = CheckSpeeds(each))
        return *refusal;
    const double c = each.Relation();
    const SetValues& s = each.given.values;
    const double v_squared = each.equations.v * each.equations.v;
    return Divided(each, {c * s.i * s.i, -c * v_squared, -s.f * s.f, v_squared},
                   2.0 * each.equations.x * (1.0 - c), "vf*vf - vn*vn = C*(vi*vi - vn*vn)");
}

Finding RefuseSet(const ParameterCase&) { return Refused(kNoSuchSet); }

}  // namespace tavrelo::mechanics::motion::acceleration
