// The unknown angle of a launch whose speed is known.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "mechanics/projectile/parameter_checks.h"
#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;
using numeric::NormAngle;
using Values = std::vector<double>;

constexpr double kHalfTurn = 180.0;
constexpr std::string_view kNone = "No hay solución.";
constexpr std::string_view kFixedBySpeed =
    "Juego de datos no válido, en vista de la relación vi^2 - v0^2 = -2g(yi - y0)";

/// A sine or cosine that passes 1 by rounding only; nothing beyond.
Values WithinUnit(double value) {
    if (std::abs(Finite(value)) <= 1.0)
        return {value};
    return std::abs(value) <= 1.0 + kRounding ? Values{std::copysign(1.0, value)} : Values{};
}

/// Both angles of a cosine. The ends are told apart: numeric::ArcCosD has values of its own for them.
Values AnglesOfCosine(double cosine) {
    Values angles;
    for (const double c : WithinUnit(cosine)) {
        if (std::abs(c) == 1.0)
            return {c > 0.0 ? 0.0 : kHalfTurn};
        angles = {numeric::ArcCosD(c), -numeric::ArcCosD(c)};
    }
    return angles;
}

/// Both angles of a sine, counted from `base`.
Values AnglesOfSine(double sine, double base) {
    Values angles;
    for (const double s : WithinUnit(sine)) {
        const double angle = numeric::ArcSinD(s);
        angles = {NormAngle(NormAngle(base) + angle)};
        AddDistinct(angles, NormAngle(NormAngle(base) + kHalfTurn - angle));
    }
    return angles;
}

/// The angles of tangents, on the side to which the projectile flies.
Values AnglesOfTangents(const Values& tangents, double x) {
    Values angles;
    for (const double tangent : tangents) {
        const double angle = numeric::ArcTanD(tangent);
        angles.push_back(x < 0.0 ? NormAngle(angle + kHalfTurn) : angle);
    }
    return angles;
}

/// Those launches that fly to the side to which the velocity at the point has to point.
Values PointingLike(double angle, const Values& launches) {
    Values kept;
    std::ranges::copy_if(launches, std::back_inserter(kept),
                         [angle](double each) { return numeric::CosD(each) * numeric::CosD(angle) > 0.0; });
    return kept;
}

Values ByTimeX(const Differences& data) { return AnglesOfCosine(data.x / (data.known * data.d)); }

Values ByTimeY(const Differences& data) {
    return AnglesOfSine((data.y + kHalfGravity * data.d * data.d) / (data.known * data.d), 0.0);
}

/// In u = tan q: k u^2 - X u + Y + k = 0, k = 4.9 X^2 / v0^2.
Values ByXY(const Differences& data) {
    const double k = kHalfGravity * data.x * data.x / (data.known * data.known);
    return AnglesOfTangents(RealRoots(k, -data.x, data.y + k), data.x);
}

/// sin(q - al) = 9.8 D cos al / v0.
Values ByTimeAngle(const Differences& data) {
    const double sine = kGravity * data.d * numeric::CosD(data.angle) / data.known;
    return PointingLike(data.angle, AnglesOfSine(sine, data.angle));
}

/// In u = tan q: j u^2 - u + tan al + j = 0, j = 9.8 X / v0^2.
Values ByXAngle(const Differences& data) {
    const double j = kGravity * data.x / (data.known * data.known);
    return PointingLike(data.angle,
                        AnglesOfTangents(RealRoots(j, -1.0, numeric::TanD(data.angle) + j), data.x));
}

/// v cos al = v0 cos q, v^2 = v0^2 - 19.6 Y.
Values ByYAngle(const Differences& data) {
    const double square = data.known * data.known;
    Values angles;
    for (const double v : RootOf(square - kTwiceGravity * data.y, square))
        angles = AnglesOfCosine(v * numeric::CosD(data.angle) / data.known);
    return angles;
}

/// v^2 = v0^2 - 19.6 v0 D sin q + (9.8 D)^2.
Values ByTimeSpeed(const Differences& data) {
    const double v0 = data.known;
    return AnglesOfSine((v0 * v0 + kGravitySquared * data.d * data.d - data.speed * data.speed) /
                            (kTwiceGravity * v0 * data.d),
                        0.0);
}

/// Speed and v0 give the height, height and x the angle.
Values ByXSpeed(const Differences& data) {
    Differences with_height = data;
    with_height.y = (data.known * data.known - data.speed * data.speed) / kTwiceGravity;
    return ByXY(with_height);
}

/// The speed at a height is the same for every angle.
Values ByYSpeed(const Differences&) { return {}; }

// In the order of Pair.
constexpr std::array<ParameterRow, kPairs> kRows = {{
    {{Check::SameTime, Check::SameX}, ByTimeX, kNone},
    {{Check::SameTime}, ByTimeY, kNone},
    {{Check::SameX}, ByXY, kNone},
    {{Check::SameTime, Check::UprightAngle}, ByTimeAngle, kNone},
    {{Check::SameXOfTrajectory, Check::UprightAngle}, ByXAngle, kNone},
    {{Check::UprightAngle}, ByYAngle, kNone},
    {{Check::SameTime}, ByTimeSpeed, kNone},
    {{Check::SameXOfTrajectory}, ByXSpeed, kNone},
    {{}, ByYSpeed, kFixedBySpeed},
}};

}  // namespace

ParameterValues AnglesFor(const Launch& launch, const PairData& data) {
    if (data.pair != Pair::YSpeed && HoldsSpeed(data.pair) && data.speed < 0.0)
        return text::Refusal{std::string(kNone)};
    return Solve(kRows[static_cast<std::size_t>(data.pair)], DifferencesOf(launch, data, *launch.first));
}

}  // namespace tavrelo::mechanics::projectile
