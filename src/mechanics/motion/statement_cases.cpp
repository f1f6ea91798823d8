#include "mechanics/motion/statement_cases.h"

#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion::statement {
namespace {

using numeric::CleanDifference;

constexpr const char* kBaseData = "Estás sustituyendo datos del punto base.";
constexpr const char* kSameTimes = "Estás poniendo iguales los tiempos inicial y final.";
constexpr const char* kNoDuration = "Estás poniendo dt = 0.";
constexpr const char* kNoDisplacement = "Estás poniendo el desplazamiento igual a cero.";
constexpr const char* kNoSolution = "No existe solución.";
constexpr const char* kFactorOne = "No puedes tomar C = 1 en esta subrutina.";

Statement Refused(const char* text) { return text::Refusal{text}; }

}  // namespace

Statement OfTimePosition(const ParameterCase& each) {
    const double d = each.D();
    if (d == 0.0)
        return Refused(kBaseData);
    return ParameterEquation{.v = d, .a = 0.5 * d * d, .constant = each.Relation() - each.equations.x};
}

Statement OfTimeSpeed(const ParameterCase& each) {
    if (each.D() == 0.0)
        return Refused(kBaseData);
    return ParameterEquation{.v = 1, .a = each.D(), .constant = each.Relation()};
}

Statement OfPositionSpeed(const ParameterCase& each) {
    if (each.Q() == 0.0)
        return Refused(kBaseData);
    return ParameterEquation{
        .v_squared = 1, .a = 2.0 * each.Q(), .constant = each.Relation() * each.Relation()};
}

Statement OfTimesDx(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    if (each.Relation() == 0.0)
        return Refused(kNoDisplacement);
    return ParameterEquation{.v = each.FromStart(),
                             .a = 0.5 * CleanDifference(each.Df() * each.Df(), each.Di() * each.Di()),
                             .constant = each.Relation()};
}

Statement OfPositionsDt(const ParameterCase& each) {
    const double h = each.Relation();
    if (h == 0.0)
        return Refused(kNoDuration);
    const double mean = each.FromStart() / h;
    return ParameterEquation{
        .v_squared = 1, .a_squared = -0.25 * h * h, .a = each.P() + each.Q(), .constant = mean * mean};
}

Statement OfPositionsDv(const ParameterCase& each) {
    const double dv = each.Relation();
    if (dv == 0.0)  // uniform, unless both ends are one
        return ParameterEquation{.a = each.FromStart(), .constant = 0};
    const double dt_per_a = each.FromStart() / dv;
    return ParameterEquation{.v_squared = 1,
                             .a_squared = -dt_per_a * dt_per_a,
                             .a = each.P() + each.Q(),
                             .constant = 0.25 * dv * dv};
}

Statement OfTimesDv(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    return ParameterEquation{.a = each.FromStart(), .constant = each.Relation()};
}

Statement OfDtDv(const ParameterCase& each) {
    if (each.given.values.f == 0.0)
        return Refused(kNoDuration);
    return ParameterEquation{.a = each.given.values.f, .constant = each.Relation()};
}

Statement OfTimesXFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    const double di = each.Di();
    const double df = each.Df();
    return ParameterEquation{.v = CleanDifference(df, c * di),
                             .a = 0.5 * CleanDifference(df * df, c * di * di),
                             .constant = each.equations.x * (c - 1.0)};
}

Statement OfTimesVFactor(const ParameterCase& each) {
    if (each.FromStart() == 0.0)
        return Refused(kSameTimes);
    const double c = each.Relation();
    return ParameterEquation{.v = 1.0 - c, .a = CleanDifference(each.Df(), c * each.Di()), .constant = 0};
}

Statement OfPositionsTFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOne);
    if (c == 0.0)
        return Refused(kFactorZero);
    if (each.equations.t != 0.0)
        return Refused(kOnlyAtZero);
    const double p = each.P();
    const double q = each.Q();
    const double speed_part = CleanDifference(q, c * c * p);
    return ParameterEquation{.v_squared = 2.0 * c * (c - 1.0) * CleanDifference(q, c * p),
                             .a = -speed_part * speed_part,
                             .constant = 0};
}

Statement OfPositionsVFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOne);
    if (c == -1.0 && each.FromStart() != 0.0)  // equal speeds at two places are opposite only at rest
        return Refused(kNoSolution);
    return ParameterEquation{
        .v_squared = c * c - 1.0, .a = -2.0 * CleanDifference(each.Q(), c * c * each.P()), .constant = 0};
}

Statement OfSpeedsTFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOne);
    const SetValues& s = each.given.values;
    return ParameterEquation{
        .v = c - 1.0, .a = -each.equations.t * (c - 1.0), .constant = CleanDifference(c * s.i, s.f)};
}

Statement OfSpeedsXFactor(const ParameterCase& each) {
    const double c = each.Relation();
    if (c == 1.0)
        return Refused(kFactorOne);
    const SetValues& s = each.given.values;
    return ParameterEquation{.v_squared = 1.0 - c,
                             .a = -2.0 * each.equations.x * (1.0 - c),
                             .constant = CleanDifference(s.f * s.f, c * s.i * s.i)};
}

}  // namespace tavrelo::mechanics::motion::statement
