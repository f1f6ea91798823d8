// The unknown component of a launch given by the other one.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "mechanics/projectile/parameter_checks.h"
#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;
using numeric::TanD;
using Values = std::vector<double>;

constexpr std::string_view kNoVx = "No hay solución para v0x.";
constexpr std::string_view kNoVy = "No hay solución.";
constexpr std::string_view kVxIsZero = "v0x no puede ser cero.";
constexpr std::string_view kNotApplicable = "Estos datos no son aplicables en vista de la relación\n";
constexpr std::string_view kNotConsistent =
    "Luego, esta pareja de datos no es consistente si el ángulo es 0.";
constexpr std::string_view kAnyVxFits = "Esta rutina no es aplicable para alfa = 0.";

Values WithoutZeros(Values values) {
    std::erase_if(values, [](double value) { return IsZero(value); });
    return values;
}

/// numerator / tan al for each numerator; what comes out 0 has no direction.
Values OverTangent(const Values& numerators, double angle) {
    Values values;
    for (const double numerator : numerators)
        values.push_back(Finite(numerator / TanD(angle)));
    return WithoutZeros(values);
}

double VyAt(double v0y, double d) { return v0y - kGravity * d; }

// v0x, `known` being v0y.

Values VxByTimeX(const Differences& data) { return {Finite(data.x / data.d)}; }

/// The times come from y = v0y d - 4.9 d^2.
Values VxByXY(const Differences& data) {
    Values values;
    for (const double d : WithoutZeros(RealRoots(kHalfGravity, -data.known, data.y)))
        AddDistinct(values, Finite(data.x / d));
    return values;
}

Values VxByTimeAngle(const Differences& data) { return OverTangent({VyAt(data.known, data.d)}, data.angle); }

/// tan al w^2 - v0y w + 9.8 X = 0.
Values VxByXAngle(const Differences& data) {
    const double tangent = IsZero(TanD(data.angle)) ? 0.0 : TanD(data.angle);
    return WithoutZeros(RealRoots(tangent, -data.known, kGravity * data.x));
}

double VySquaredAtY(const Differences& data) { return data.known * data.known - kTwiceGravity * data.y; }

Values VxByYAngle(const Differences& data) {
    return OverTangent(BothRootsOf(VySquaredAtY(data), data.known * data.known), data.angle);
}

Values VxByTimeSpeed(const Differences& data) {
    const double vy = VyAt(data.known, data.d);
    return BothRootsOf(data.speed * data.speed - vy * vy, data.speed * data.speed);
}

/// Only if the projectile comes to that height at all.
Values VxByYSpeed(const Differences& data) {
    Values values;
    for (const double vy : RootOf(VySquaredAtY(data), data.known * data.known))
        values = BothRootsOf(data.speed * data.speed - vy * vy, data.speed * data.speed);
    return values;
}

Values None(const Differences&) { return {}; }

// In the order of Pair. TimeY and a level angle are answered before; XSpeed leads to a quartic.
constexpr std::array<ParameterRow, kPairs> kVxRows = {{
    {{Check::SameTime}, VxByTimeX, kNoVx},
    {{}, None, kNoVx},
    {{}, VxByXY, kNoVx},
    {{Check::UprightAngle}, VxByTimeAngle, kNoVx},
    {{Check::UprightAngle}, VxByXAngle, kNoVx},
    {{Check::UprightAngle}, VxByYAngle, kNoVx},
    {{}, VxByTimeSpeed, kNoVx},
    {{Check::SameXOfTrajectory}, None, kNoVx},
    {{}, VxByYSpeed, kNoVx},
}};

// v0y, `known` being v0x. Where x is given it gives the time.

double TimeByX(const Differences& data) { return Finite(data.x / data.known); }
double TimeOf(const Differences& data) { return data.d != 0.0 ? data.d : TimeByX(data); }

Values VyByHeight(const Differences& data) {
    const double d = TimeOf(data);
    return {Finite((data.y + kHalfGravity * d * d) / d)};
}

Values VyByAngle(const Differences& data) {
    return {Finite(data.known * TanD(data.angle) + kGravity * TimeOf(data))};
}

Values VyByYAngle(const Differences& data) {
    const double vy = data.known * TanD(data.angle);
    return BothRootsOf(vy * vy + kTwiceGravity * data.y, vy * vy);
}

Values VyBySpeed(const Differences& data) {
    Values values;
    for (const double vy :
         BothRootsOf(data.speed * data.speed - data.known * data.known, data.speed * data.speed))
        values.push_back(Finite(kGravity * TimeOf(data) + vy));
    return values;
}

/// Only if the speed is not below the horizontal component.
Values VyByYSpeed(const Differences& data) {
    Values values;
    const double square = data.speed * data.speed;
    for (const double vy : RootOf(square - data.known * data.known, square))
        values = BothRootsOf(vy * vy + kTwiceGravity * data.y, square);
    return values;
}

// In the order of Pair. TimeX is answered before.
constexpr std::array<ParameterRow, kPairs> kVyRows = {{
    {{}, None, kNoVy},
    {{Check::SameTime}, VyByHeight, kNoVy},
    {{Check::SameX}, VyByHeight, kNoVy},
    {{Check::SameTime, Check::UprightAngle}, VyByAngle, kNoVy},
    {{Check::SameXOfTrajectory, Check::UprightAngle}, VyByAngle, kNoVy},
    {{Check::UprightAngle}, VyByYAngle, kNoVy},
    {{Check::SameTime}, VyBySpeed, kNoVy},
    {{Check::SameXOfTrajectory}, VyBySpeed, kNoVy},
    {{}, VyByYSpeed, kNoVy},
}};

// Messages that hold numbers. They are for boxes: no markup.

std::string Less(std::string_view variable, double number, int decimals) {
    const double shown = text::RoundTo(number, decimals);
    return std::string(variable) + (shown < 0.0 ? " + " : " - ") + text::NumberToText(std::abs(shown));
}

text::Refusal NoVxInHeight(int mover, const Launch& launch, int decimals) {
    const std::string time = "(" + Less("t", launch.start->t, decimals) + ")";
    return {std::string(kNotApplicable) + Less(SymbolsOf(mover).y, launch.start->y, decimals) + " = " +
            text::RoundedText(*launch.second, decimals) + " " + time + " - 4.9 " + time + "^2"};
}

text::Refusal NoVyInX(int mover, const Launch& launch, int decimals) {
    return {std::string(kNotApplicable) + Less(SymbolsOf(mover).x, launch.start->x, decimals) + " = " +
            text::RoundedText(*launch.first, decimals) + " (" + Less("t", launch.start->t, decimals) + ")"};
}

/// A level velocity is that of the top: data that name another time or height contradict it, and with those
/// of the top every v0x fits.
std::optional<text::Refusal> LevelAngle(int mover, const Launch& launch, const PairData& data, int decimals) {
    const bool by_time = data.pair == Pair::TimeAngle;
    if ((!by_time && data.pair != Pair::YAngle) || !IsZero(TanD(data.angle)))
        return std::nullopt;
    const double v0y = *launch.second;
    const double top =
        by_time ? launch.start->t + v0y / kGravity : launch.start->y + v0y * v0y / kTwiceGravity;
    if (IsZero(top - (by_time ? data.t : data.y)))
        return text::Refusal{std::string(kAnyVxFits)};
    const std::string where = by_time
                                  ? std::string("El punto de máxima altura ocurre cuando t")
                                  : "El punto de máxima altura está en " + std::string(SymbolsOf(mover).y);
    return text::Refusal{where + " = " + text::RoundedText(top, decimals) + "\n" +
                         std::string(kNotConsistent)};
}

}  // namespace

ParameterValues HorizontalSpeedsFor(int mover, const Launch& launch, const PairData& data, int decimals) {
    if (data.pair == Pair::TimeY)
        return NoVxInHeight(mover, launch, decimals);
    if (auto refusal = LevelAngle(mover, launch, data, decimals))
        return *refusal;
    if (HoldsSpeed(data.pair) && data.speed < 0.0)
        return text::Refusal{std::string(kNoVx)};
    return Solve(kVxRows[static_cast<std::size_t>(data.pair)], DifferencesOf(launch, data, *launch.second));
}

ParameterValues VerticalSpeedsFor(int mover, const Launch& launch, const PairData& data, int decimals) {
    if (IsZero(*launch.first))
        return text::Refusal{std::string(kVxIsZero)};
    if (data.pair == Pair::TimeX)
        return NoVyInX(mover, launch, decimals);
    if (HoldsSpeed(data.pair) && data.speed < 0.0)
        return text::Refusal{std::string(kNoVy)};
    return Solve(kVyRows[static_cast<std::size_t>(data.pair)], DifferencesOf(launch, data, *launch.first));
}

}  // namespace tavrelo::mechanics::projectile
