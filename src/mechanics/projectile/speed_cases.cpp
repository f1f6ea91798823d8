// The unknown speed of a launch whose angle is known.

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
using Values = std::vector<double>;

constexpr std::string_view kNone = "No hay solución para v0.";
constexpr std::string_view kNoneByAngle = "No hay solución.";
constexpr std::string_view kNoneBySpeed = "Error en los datos.";

/// A quotient that counts only when it is above 0: none over 0.
Values PositiveQuotient(double numerator, double denominator) {
    if (IsZero(denominator) || !(Finite(numerator / denominator) > 0.0))
        return {};
    return {numerator / denominator};
}

Values PositiveOnly(const Values& values) {
    Values positive;
    std::ranges::copy_if(values, std::back_inserter(positive), [](double value) { return value > 0.0; });
    return positive;
}

Values SquareRoots(const Values& squares) {
    Values roots;
    for (const double square : PositiveOnly(squares))
        roots.push_back(std::sqrt(square));
    return roots;
}

double Cosine(const Differences& data) { return numeric::CosD(data.known); }
double Sine(const Differences& data) { return numeric::SinD(data.known); }

Values ByTimeX(const Differences& data) { return PositiveQuotient(data.x, Cosine(data) * data.d); }

Values ByTimeY(const Differences& data) {
    if (IsZero(Sine(data)))
        return {};
    return PositiveQuotient(data.y + kHalfGravity * data.d * data.d, Sine(data) * data.d);
}

/// y = x tan q - 4.9 x^2 / (v0 cos q)^2.
Values ByXY(const Differences& data) {
    const double c = Cosine(data);
    if (IsZero(c))
        return {};
    return SquareRoots(
        PositiveQuotient(kHalfGravity * data.x * data.x, c * (data.x * Sine(data) - data.y * c)));
}

/// tan al = (v0 s - 9.8 D) / (v0 c).
Values ByTimeAngle(const Differences& data) {
    return PositiveQuotient(kGravity * data.d, Sine(data) - Cosine(data) * numeric::TanD(data.angle));
}

Values ByXAngle(const Differences& data) {
    const double c = Cosine(data);
    return SquareRoots(PositiveQuotient(kGravity * data.x, c * (Sine(data) - c * numeric::TanD(data.angle))));
}

/// vy^2 = (v0 s)^2 - 19.6 Y with vy = v0 c tan al.
Values ByYAngle(const Differences& data) {
    const double along = Cosine(data) * numeric::TanD(data.angle);
    return SquareRoots(PositiveQuotient(kTwiceGravity * data.y, (Sine(data) - along) * (Sine(data) + along)));
}

/// v^2 = v0^2 - 19.6 s D v0 + (9.8 D)^2.
Values ByTimeSpeed(const Differences& data) {
    return PositiveOnly(RealRoots(1.0, -kTwiceGravity * Sine(data) * data.d,
                                  kGravitySquared * data.d * data.d - data.speed * data.speed));
}

/// The same with D = X / (v0 c), in w = v0^2.
Values ByXSpeed(const Differences& data) {
    const double c = Cosine(data);
    if (IsZero(c))
        return {};
    return SquareRoots(RealRoots(1.0, -(kTwiceGravity * Sine(data) / c * data.x + data.speed * data.speed),
                                 kGravitySquared * data.x * data.x / (c * c)));
}

/// v0^2 = v^2 + 19.6 Y, if a projectile thrown so comes to that height at all.
Values ByYSpeed(const Differences& data) {
    const double square = Finite(data.speed * data.speed + kTwiceGravity * data.y);
    const double rise = square * Sine(data) * Sine(data);
    if (rise - kTwiceGravity * data.y < -kRounding * rise)
        return {};
    return SquareRoots({square});
}

// In the order of Pair.
constexpr std::array<ParameterRow, kPairs> kRows = {{
    {{Check::SameTime, Check::SameX}, ByTimeX, kNone},
    {{Check::SameTime}, ByTimeY, kNone},
    {{Check::SameX}, ByXY, kNone},
    {{Check::SameTime, Check::UprightLaunch}, ByTimeAngle, kNone},
    {{Check::SameXOfTrajectory, Check::UprightLaunch}, ByXAngle, kNoneByAngle},
    {{Check::UprightLaunch}, ByYAngle, kNoneByAngle},
    {{Check::SameTime}, ByTimeSpeed, kNoneBySpeed},
    {{Check::SameXOfTrajectory}, ByXSpeed, kNoneBySpeed},
    {{}, ByYSpeed, kNoneBySpeed},
}};

}  // namespace

ParameterValues SpeedsFor(const Launch& launch, const PairData& data) {
    const Differences differences = DifferencesOf(launch, data, *launch.second);
    constexpr std::array kFirst = {Check::LaunchAngle};
    if (HoldsAngle(data.pair))
        if (auto refusal = FirstFailed(kFirst, differences))
            return *refusal;
    if (HoldsSpeed(data.pair) && data.speed < 0.0)
        return text::Refusal{std::string(kNoneBySpeed)};
    return Solve(kRows[static_cast<std::size_t>(data.pair)], differences);
}

}  // namespace tavrelo::mechanics::projectile
