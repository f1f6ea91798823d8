#include "mechanics/motion/speed_cases.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion::speed {
namespace {

using numeric::CheckedDivide;

constexpr const char* kBaseTime = "Estás sustituyendo el tiempo del punto base.";
constexpr const char* kAccelerationKnown = "No aplicable dado que se conoce la aceleración.";
constexpr const char* kSameTimes = "Los tiempos inicial y final son iguales";
constexpr const char* kNoDuration = "El intervalo considerado tiene duración cero.";
constexpr const char* kUniform = "Caso especial no aplicable al movimiento uniforme.";
constexpr const char* kUnitFactor = "El factor C no puede ser +1 ni -1 en este caso.";

Finding Refused(std::string text) { return text::Refusal{std::move(text)}; }

Finding Arbitrary(const ParameterCase& each) { return Remarks{{each.SpeedName() + " es arbitraria."}}; }

Finding NoneExists(const ParameterCase& each) {
    return Refused("No existe solución para  " + each.PlainSpeedName());
}

/// xf = C xi loses the speed when Df = C Di: either any will do, or other times would, or none.
Finding WithoutSpeed(const ParameterCase& each) {
    const double c = each.Relation();
    const double xn = each.equations.x;
    const double half = 0.5 * each.equations.a * c;
    const double at_start = half * each.Di() * each.Di();
    if (std::abs(xn - at_start) <= kIdentityTolerance * std::max(std::abs(xn), std::abs(at_start)))
        return Arbitrary(each);
    if (half == 0.0 || xn / half <= 0.0)
        return NoneExists(each);
    const double since_base = numeric::CheckedSqrt(xn / half);
    const Labels& labels = each.labels;
    const std::string start = labels.At(Quantity::Time, *each.given.referred);
    const auto moment = [&](double t) { return start + " = " + labels.Number(t); };
    return Remarks{
        {"Existe solución si se cumple que",
         labels.At(Quantity::Position, each.equations.base) + " = 0.5 " + std::string(labels.Acceleration()) +
             " C (" + start + ";-" + labels.At(Quantity::Time, each.equations.base) + ")¡2",
         "es decir, dados el factor C y la aceleración " + std::string(labels.Acceleration()) + ", si",
         moment(each.equations.t + since_base) + "  o bien  " + moment(each.equations.t - since_base),
         "en cuyo caso " + each.SpeedName() + " es arbitraria."}};
}

/// What both rows with known speeds refuse.
std::optional<text::Refusal> CheckSpeeds(const ParameterCase& each) {
    if (each.equations.a == 0.0)
        return text::Refusal{kUniform};
    if (std::abs(each.Relation()) == 1.0)
        return text::Refusal{kUnitFactor};
    return std::nullopt;
}

}  // namespace

Finding OfTimePosition(const ParameterCase& each) {
    const double d = each.D();
    if (d == 0.0)
        return Refused(kBaseTime);
    return Candidates{(each.Relation() - each.equations.x) / d - 0.5 * each.equations.a * d};
}

Finding OfTimeSpeed(const ParameterCase& each) {
    return Candidates{each.Relation() - each.equations.a * each.D()};
}

Finding OfPositionSpeed(const ParameterCase& each) {
    const double v = each.Relation();
    return SquareRootsOfSum({v * v, -2.0 * each.equations.a * each.Q()});
}

Finding OfTimesDx(const ParameterCase& each) {
    const double dt = each.FromStart();
    if (dt == 0.0)
        return Refused(kSameTimes);
    return Candidates{each.Relation() / dt - 0.5 * each.equations.a * (each.Di() + each.Df())};
}

Finding OfPositionsDt(const ParameterCase& each) {
    const double h = each.Relation();
    if (h == 0.0)
        return Refused(kNoDuration);
    const double a = each.equations.a;
    const double vi = each.FromStart() / h - 0.5 * a * h;
    if (a == 0.0)
        return Candidates{vi};
    return SquareRootsOfSum({vi * vi, -2.0 * a * each.P()});
}

Finding RefuseKnownAcceleration(const ParameterCase&) { return Refused(kAccelerationKnown); }

Finding OfTimesXFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    const double di = each.Di();
    const double df = each.Df();
    if (numeric::CleanDifference(df, c * di) == 0.0)
        return WithoutSpeed(each);
    return Candidates{(each.equations.x * (c - 1.0) + 0.5 * each.equations.a * (c * di * di - df * df)) /
                      (df - c * di)};
}

Finding OfTimesVFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    if (c == 1.0)
        return each.equations.a == 0.0 ? Arbitrary(each) : NoneExists(each);
    return Candidates{each.equations.a * (c * each.Di() - each.Df()) / (1.0 - c)};
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
    const double a = each.equations.a;
    const double square_part = each.Q() - c * p;
    if (a == 0.0) {
        const bool is_uniform = numeric::CleanDifference(each.Q(), c * p) == 0.0;
        return is_uniform ? Arbitrary(each) : Finding(Candidates{});
    }
    if (square_part == 0.0)
        return p == 0.0 ? Arbitrary(each) : Finding(Candidates{});
    Candidates speeds;
    for (const double u : SquareRootsOfSum({2.0 * square_part / (a * c * (c - 1.0))}))
        speeds.push_back(CheckedDivide(p - 0.5 * a * u * u, u));
    return speeds;
}

Finding OfPositionsVFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOneInProcedure);
    const double a = each.equations.a;
    if (c == -1.0)
        return each.FromStart() == 0.0 && a != 0.0 ? Arbitrary(each) : Finding(Candidates{});
    const double scale = 2.0 * a / (c * c - 1.0);
    return SquareRootsOfSum({scale * each.Q(), -scale * c * c * each.P()});
}

Finding OfSpeedsTFactor(const ParameterCase& each) {
    if (const auto refusal = CheckSpeeds(each))
        return *refusal;
    const double c = each.Relation();
    const SetValues& s = each.given.values;
    return Candidates{(c * s.i - s.f) / (c - 1.0) + each.equations.a * each.equations.t};
}

Finding OfSpeedsXFactor(const ParameterCase& each) {
    if (const auto refusal = CheckSpeeds(each))
        return *refusal;
    const double c = each.Relation();
    const SetValues& s = each.given.values;
    return SquareRootsOfSum(
        {2.0 * each.equations.a * each.equations.x, s.f * s.f / (1.0 - c), -c * s.i * s.i / (1.0 - c)});
}

}  // namespace tavrelo::mechanics::motion::speed
