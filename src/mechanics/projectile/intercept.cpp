#include "mechanics/projectile/intercept.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/root_search.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

constexpr double kHalfTurn = 180.0;
constexpr std::size_t kMostSolutions = 2;
constexpr const char* kNotApplicable = "Caso no aplicable.";
constexpr const char* kLimitTooLow = "El límite superior debe ser mayor que t0.";
constexpr const char* kChooseOne =
    "Para plantear las ecuaciones con la primera solución oprime\nel botón \"Sí\". Para con la segunda "
    "oprime "
    "\"No\".";
constexpr const char* kAcceptAngle =
    "Para plantear las ecuaciones de movimiento con el valor calculado del ángulo oprime el botón "
    "\"Aceptar\".";
constexpr const char* kAcceptSpeed =
    "Para plantear las ecuaciones de movimiento con el valor calculado de v0 oprime el botón \"Aceptar\".";

/// One way to meet.
struct Catch {
    double d;  // time of flight
    PolarVelocity launch;
};
using Catches = std::vector<Catch>;

/// The velocity with which the projectile meets an object of known speed after `d`.
Velocity LaunchAfter(const Interception& data, double d) {
    const double u = *data.object_speed;
    return {Finite((u * data.start.t - data.start.x) / d + u), Finite(kHalfGravity * d - data.start.y / d)};
}

/// Parallel to the launch: 4.9 c D^2 - u s D - (y0 c + e s) = 0.
Catches WithAngle(const Interception& data) {
    const double c = numeric::CosD(*data.angle);
    const double s = numeric::SinD(*data.angle);
    const double u = *data.object_speed;
    const double e = u * data.start.t - data.start.x;
    Catches catches;
    for (const double d :
         RealRoots(IsZero(c) ? 0.0 : kHalfGravity * c, -u * s, -(data.start.y * c + e * s))) {
        if (!(d > kZero))
            continue;
        const auto [vx, vy] = LaunchAfter(data, d);
        if (const double speed = vx * c + vy * s; speed > 0.0)
            catches.push_back({d, {Finite(speed), *data.angle}});
    }
    return catches;
}

/// The square of the launch is v0^2:
/// 24.01 D^4 + (u^2 - 9.8 y0 - v0^2) D^2 + 2 e u D + e^2 + y0^2 = 0.
Catches WithSpeed(const Interception& data, double limit) {
    const double u = *data.object_speed;
    const double y0 = data.start.y;
    const double e = u * data.start.t - data.start.x;
    const double square = u * u - kGravity * y0 - *data.speed * *data.speed;
    const auto quartic = [&](double d) {
        return ((kHalfGravity * kHalfGravity * d * d + square) * d + 2.0 * e * u) * d + e * e + y0 * y0;
    };
    Catches catches;
    // A hair longer: the search misses a root that falls on one of its samples, as whole numbers like to do.
    const auto found = numeric::FindRoots(quartic, 0.0, limit * (1.0 + kRounding));
    if (const auto* roots = std::get_if<numeric::FoundRoots>(&found))
        for (const double d : roots->roots)
            if (d > kZero && catches.size() < kMostSolutions)
                catches.push_back({d, {*data.speed, DirectionOf(LaunchAfter(data, d))}});
    return catches;
}

// The reports.

std::string DataLine(const Interception& data, int decimals) {
    std::string line = "t!0 = " + Shown(data.start.t, decimals);
    if (data.object_speed)
        line += ", u = " + Shown(*data.object_speed, decimals);
    if (data.meeting_time)
        line += ", t!c = " + Shown(*data.meeting_time, decimals);
    return line;
}

Worked Opened(const Interception& data, int decimals) {
    Worked worked;
    worked.report = {
        "Datos: x!0 = " + Shown(data.start.x, decimals) + ", y!0 = " + Shown(data.start.y, decimals),
        DataLine(data, decimals)};
    return worked;
}

/// "Solución", with a number if there are several.
std::string Heading(std::size_t index, std::size_t count) {
    return "Solución" + (count > 1 ? " " + std::to_string(index + 1) : std::string()) + ": ";
}

WorkedOrRefusal ReportCatches(const Interception& data, const Catches& catches, int decimals) {
    if (catches.empty())
        return text::Refusal{kNoSolution};
    Worked worked = Opened(data, decimals);
    for (std::size_t i = 0; i < catches.size(); ++i) {
        const auto& [d, launch] = catches[i];
        worked.report.push_back(Heading(i, catches.size()) +
                                "Alcance en t!c = " + Shown(data.start.t + d, decimals));
        worked.report.push_back("con v!0 = " + Shown(launch.speed, decimals) +
                                (data.speed ? ", ;q!0 = " + Shown(launch.angle, decimals) + "°" : ""));
        worked.launches.push_back(LaunchOf(data.start, launch));
    }
    worked.question = catches.size() == 1 ? kPlantQuestion : kChooseOne;
    return worked;
}

/// A launch for a given time, and the speed of the object that it meets then.
WorkedOrRefusal ReportObjects(const Interception& data, const std::vector<PolarVelocity>& launches,
                              int decimals) {
    if (launches.empty())
        return text::Refusal{kNoSolution};
    const double d = *data.meeting_time - data.start.t;
    Worked worked = Opened(data, decimals);
    for (std::size_t i = 0; i < launches.size(); ++i) {
        const PolarVelocity& launch = launches[i];
        const double x = Finite(data.start.x + launch.speed * numeric::CosD(launch.angle) * d);
        const std::string heading = Heading(i, launches.size());
        worked.report.insert(worked.report.end(),
                             {heading + "u = " + Shown(Finite(x / *data.meeting_time), decimals),
                              "El choque es en x = " + Shown(x, decimals),
                              heading + "v!0 = " + Shown(launch.speed, decimals) +
                                  ", ;q = " + Shown(launch.angle, decimals) + "°"});
        worked.launches.push_back(LaunchOf(data.start, launch));
    }
    worked.question = launches.size() > 1 ? kChooseOne : data.speed ? kAcceptAngle : kAcceptSpeed;
    worked.buttons = launches.size() > 1 ? Buttons::YesNo : Buttons::OkCancel;
    return worked;
}

// The cases, by what is known.

double FlightTime(const Interception& data) { return *data.meeting_time - data.start.t; }

WorkedOrRefusal LaunchUnknown(const Interception& data, double, int decimals) {
    const PolarVelocity launch = Polar(LaunchAfter(data, FlightTime(data)));
    if (!(launch.speed > 0.0))
        return text::Refusal{kNoSolution};
    Worked worked = Opened(data, decimals);
    worked.report.push_back("Se halló v!0 = " + Shown(launch.speed, decimals) +
                            ", ;q!0 = " + Shown(launch.angle, decimals) + "°");
    worked.report.push_back("El proyectil encuentra al móvil en el punto x = " +
                            Shown(Finite(*data.object_speed * *data.meeting_time), decimals) + ", y = 0");
    worked.launches = {LaunchOf(data.start, launch)};
    worked.question = kPlantQuestion;
    return worked;
}

WorkedOrRefusal SpeedUnknown(const Interception& data, double, int decimals) {
    return ReportCatches(data, WithAngle(data), decimals);
}

WorkedOrRefusal AngleUnknown(const Interception& data, double limit, int decimals) {
    return ReportCatches(data, WithSpeed(data, limit), decimals);
}

/// v0 sin q D = 4.9 D^2 - y0 for the speed.
WorkedOrRefusal SpeedAndObjectUnknown(const Interception& data, double, int decimals) {
    const double d = FlightTime(data);
    const double s = numeric::SinD(*data.angle);
    std::vector<PolarVelocity> launches;
    if (!IsZero(s))
        if (const double speed = (kHalfGravity * d * d - data.start.y) / (d * s); speed > 0.0)
            launches.push_back({Finite(speed), *data.angle});
    return ReportObjects(data, launches, decimals);
}

/// The same for the angle: two of one sine.
WorkedOrRefusal AngleAndObjectUnknown(const Interception& data, double, int decimals) {
    const double d = FlightTime(data);
    const double sine = Finite((kHalfGravity * d * d - data.start.y) / (*data.speed * d));
    std::vector<PolarVelocity> launches;
    if (std::abs(sine) <= 1.0) {
        std::vector<double> angles = {numeric::ArcSinD(sine)};
        AddDistinct(angles, numeric::NormAngle(kHalfTurn - angles.front()));
        for (const double angle : angles)
            launches.push_back({*data.speed, angle});
    }
    return ReportObjects(data, launches, decimals);
}

struct Row {
    bool speed, angle, object_speed, meeting_time;
    WorkedOrRefusal (*solve)(const Interception&, double limit, int decimals);
};
// What is known; any other set is not applicable.
constexpr std::array<Row, 5> kRows = {{
    {false, false, true, true, LaunchUnknown},
    {false, true, true, false, SpeedUnknown},
    {true, false, true, false, AngleUnknown},
    {false, true, false, true, SpeedAndObjectUnknown},
    {true, false, false, true, AngleAndObjectUnknown},
}};

const Row* RowOf(const Interception& data) {
    const auto fits = [&data](const Row& row) {
        return row.speed == data.speed.has_value() && row.angle == data.angle.has_value() &&
               row.object_speed == data.object_speed.has_value() &&
               row.meeting_time == data.meeting_time.has_value();
    };
    const auto* row = std::ranges::find_if(kRows, fits);
    return row == kRows.end() ? nullptr : row;
}

}  // namespace

bool Interception::NeedsLimit() const { return speed && !angle && object_speed && !meeting_time; }

WorkedOrRefusal Intercept(const Interception& data, double limit, int decimals) {
    const Row* row = RowOf(data);
    if (!row)
        return text::Refusal{kNotApplicable};
    if (data.meeting_time && (!(FlightTime(data) > 0.0) || (!data.object_speed && *data.meeting_time == 0.0)))
        return text::Refusal{kNoSolution};
    if (data.speed && !(*data.speed > 0.0))
        return text::Refusal{kNoSolution};
    return row->solve(data, limit, decimals);
}

std::variant<text::Refusal, double> ReadFlightTimeLimit(const Start& start, const std::string& typed) {
    const double limit = text::ToNumber(text::Trim(typed));
    if (!(limit > start.t) || !(limit > 0.0))
        return text::Refusal{kLimitTooLow};
    return limit;
}

}  // namespace tavrelo::mechanics::projectile
