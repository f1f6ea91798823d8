#include "mechanics/projectile/parameter_checks.h"

#include <cmath>

namespace tavrelo::mechanics::projectile {
namespace {

constexpr std::string_view kLaunchAngle = "Estás poniendo el ángulo igual al ángulo de lanzamiento.";
constexpr std::string_view kSameTime = "Estás poniendo el tiempo igual al tiempo inicial.";
constexpr std::string_view kSameX = "Estás poniendo x igual a la del punto inicial.";
constexpr std::string_view kSameXOfTrajectory =
    "Estás poniendo la coordenada x igual a la del punto inicial.";
constexpr std::string_view kUpright = "El ángulo alfa no puede ser 90° ni -90°.";

/// What is wrong; empty when the check passes.
std::string_view FaultOf(Check check, const Differences& data) {
    switch (check) {
        case Check::None:
            return {};
        case Check::LaunchAngle:
            return IsZero(data.angle - data.known) ? kLaunchAngle : std::string_view();
        case Check::SameTime:
            return IsZero(data.d) ? kSameTime : std::string_view();
        case Check::SameX:
            return IsZero(data.x) ? kSameX : std::string_view();
        case Check::SameXOfTrajectory:
            return IsZero(data.x) ? kSameXOfTrajectory : std::string_view();
        case Check::UprightAngle:
            return IsUpright(data.angle) ? kUpright : std::string_view();
        case Check::UprightLaunch:
            return IsUpright(data.angle) || IsUpright(data.known) ? kUpright : std::string_view();
    }
    return {};
}

}  // namespace

Differences DifferencesOf(const Launch& launch, const PairData& data, double known) {
    const Start& start = *launch.start;
    return {HoldsTime(data.pair) ? data.t - start.t : 0.0,
            HoldsX(data.pair) ? data.x - start.x : 0.0,
            HoldsY(data.pair) ? data.y - start.y : 0.0,
            data.speed,
            data.angle,
            known};
}

std::optional<text::Refusal> FirstFailed(std::span<const Check> checks, const Differences& data) {
    for (const Check check : checks)
        if (const std::string_view fault = FaultOf(check, data); !fault.empty())
            return text::Refusal{std::string(fault)};
    return std::nullopt;
}

ParameterValues Solve(const ParameterRow& row, const Differences& data) {
    if (auto refusal = FirstFailed(row.checks, data))
        return *refusal;
    std::vector<double> values = row.values(data);
    if (values.empty())
        return text::Refusal{std::string(row.none)};
    return values;
}

}  // namespace tavrelo::mechanics::projectile
