#include "motion/parameter_sets.h"

#include <algorithm>
#include <cmath>

namespace tavrelo::physics {
namespace {

using Each = const KnownInterval&;

bool Always(Each) { return true; }
bool Never(Each) { return false; }
bool IsInstant(Each s) { return s.ti == s.tf; }
bool EndsOnBaseTime(Each s) { return s.tf == s.motion.tn; }
bool EndsOnBasePlace(Each s) { return IsNearlyZero(s.xf() - s.motion.xn, s.ScaleOfX()); }
bool KeepsPlace(Each s) { return IsNearlyZero(s.Dx(), s.ScaleOfX()); }
bool KeepsPlaceSize(Each s) { return KeepsPlace(s) || IsNearlyZero(s.xi() + s.xf(), s.ScaleOfX()); }
bool KeepsSpeed(Each s) { return IsNearlyZero(s.Dv(), s.ScaleOfV()); }
bool KeepsSpeedSize(Each s) { return KeepsSpeed(s) || IsNearlyZero(s.vi() + s.vf(), s.ScaleOfV()); }
bool IsUniform(Each s) { return s.motion.a == 0; }

/// Both times lie equally far from the base.
bool IsAroundBase(Each s) { return std::abs(s.ti - s.motion.tn) == std::abs(s.tf - s.motion.tn); }

/// Df = C Di, in times or in their squares: the parameter drops out.
bool HasRatioOfTimes(Each s, double factor) {
    const double di = s.ti - s.motion.tn;
    const double df = s.tf - s.motion.tn;
    return IsInstant(s) || IsNearlyZero(df - factor * di, std::max(std::abs(df), std::abs(factor * di)));
}
bool HasRatioOfSquares(Each s, double factor) {
    const double di = s.ti - s.motion.tn;
    const double df = s.tf - s.motion.tn;
    return IsInstant(s) || IsNearlyZero(df * df - factor * di * di, df * df);
}

bool KeepsPlaceAtBase(Each s) {
    return KeepsSpeed(s) || (KeepsPlace(s) && IsNearlyZero(s.xi() - s.motion.xn, s.ScaleOfX()));
}

constexpr auto N = Form::None, V = Form::Number, D = Form::Increment, C = Form::Factor;
constexpr ParameterSet kSets[] = {
    {{"t, x", N, N, N, V, V, N}, EndsOnBaseTime, EndsOnBaseTime},
    {{"t, v", N, N, N, V, N, V}, Never, EndsOnBaseTime},
    {{"x, v", N, N, N, N, V, V}, Never, EndsOnBasePlace},
    {{"ti, tf, Dx", V, N, N, V, D, N},
     IsInstant,
     [](Each s) { return IsInstant(s) || KeepsPlace(s) || IsAroundBase(s); }},
    {{"xi, xf, Dt", N, V, N, D, V, N}, IsInstant, IsInstant},
    {{"xi, xf, Dv", N, V, N, N, V, D}, Always, KeepsPlaceAtBase},
    {{"ti, tf, C[x]", V, N, N, V, C, N},
     [](Each s) { return HasRatioOfTimes(s, s.xf() / s.xi()); },
     [](Each s) { return HasRatioOfSquares(s, s.xf() / s.xi()); }},
    {{"ti, tf, C[v]", V, N, N, V, N, C},
     KeepsSpeed,
     [](Each s) { return HasRatioOfTimes(s, s.vf() / s.vi()); }},
    {{"xi, xf, C[t]", N, V, N, C, V, N},
     [](Each s) { return IsInstant(s) || s.motion.tn != 0 || IsUniform(s); },
     [](Each s) { return IsInstant(s) || s.motion.tn != 0 || s.motion.vn == 0; }},
    {{"xi, xf, C[v]", N, V, N, N, V, C},
     KeepsSpeedSize,
     [](Each s) { return KeepsSpeedSize(s) || s.motion.vn == 0; }},
    {{"vi, vf, C[t]", N, N, V, C, N, V},
     [](Each s) { return IsUniform(s) || std::abs(s.ti) == std::abs(s.tf); },
     [](Each s) { return IsInstant(s) || KeepsSpeed(s) || s.motion.tn == 0; }},
    {{"vi, vf, C[x]", N, N, V, N, C, V},
     [](Each s) { return IsUniform(s) || KeepsPlaceSize(s); },
     [](Each s) { return KeepsPlace(s) || KeepsSpeed(s) || s.motion.xn == 0; }},
};

}  // namespace

std::span<const ParameterSet> ParameterSets() { return kSets; }

}  // namespace tavrelo::physics
