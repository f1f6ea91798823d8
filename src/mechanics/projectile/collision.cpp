#include "mechanics/projectile/collision.h"

#include <cmath>

#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

constexpr int kSecondMover = 2;
constexpr const char* kPolarOnly = "El modo cs-md del móvil 2 debe ser \"md\".";
constexpr const char* kNoFirst = "No tengo las ecs. de mov. del móvil 1.";
constexpr const char* kFirstStartsAtZero = "En esta rutina el tiempo inicial del primer móvil debe ser 0.";
constexpr const char* kNoParameter =
    "Las ecs. de mov. del móvil 2 deben tener al menos un parámetro V0 o Theta0.";
constexpr const char* kNoSecond = "Debes plantear las ecs. de mov. del móvil 2.";
constexpr const char* kTooEarly = "El tiempo del choque debe ser mayor que el tiempo inicial del móvil 2.";
constexpr const char* kNotApplicable = "Caso no aplicable.";
constexpr const char* kNone = "No existe solución.";

/// A way to meet: when, how mover 2 is launched, and where.
struct Meeting {
    double time;
    PolarVelocity launch;
    State place;
};
using Meetings = std::vector<Meeting>;

/// Mover 1 as mover 2 sees it at its launch.
struct Relative {
    double p, q;  // place
    double u, w;  // velocity

    Velocity LaunchAfter(double d) const { return {Finite(p / d + u), Finite(q / d + w)}; }
};
Relative RelativeAt(const Flight& first, const Start& second) {
    const State state = StateAt(first, second.t);
    return {state.x - second.x, state.y - second.y, state.velocity.x, state.velocity.y};
}

/// The first refusal that applies, in the order of the tests; empty when the data fit.
const char* FaultOf(const Equations& first, const Equations& second, const std::optional<double>& time) {
    if (second.kind != LaunchKind::None && second.launch.mode == SpeedMode::Components)
        return kPolarOnly;
    if (!first.IsComplete())
        return kNoFirst;
    if (first.flight.start.t != 0.0)
        return kFirstStartsAtZero;
    if (second.IsComplete())
        return kNoParameter;
    if (second.kind == LaunchKind::None)
        return kNoSecond;
    if (time && *time <= second.launch.start->t)
        return kTooEarly;
    return second.kind == LaunchKind::UnknownSpeedAndAngle && !time ? kNotApplicable : nullptr;
}

/// Holds the data of one problem.
struct Problem {
    const Flight& first;
    const Launch& second;
    Relative relative;

    Meeting MeetingAfter(double d, const PolarVelocity& launch) const {
        const double time = Finite(second.start->t + d);
        return {time, launch, StateAt(first, time)};
    }
    bool IsAfterStarts(double d) const { return d > 0.0 && second.start->t + d >= 0.0; }
};

/// |launch| = V0: (u^2 + w^2 - V0^2) D^2 + 2 (p u + q w) D + p^2 + q^2 = 0.
Meetings WithSpeed(const Problem& problem) {
    const auto& [p, q, u, w] = problem.relative;
    const double speed = *problem.second.first;
    const double square = Finite(u * u + w * w - speed * speed);
    Meetings meetings;
    for (const double d :
         RealRoots(IsZero(square) ? 0.0 : square, Finite(2.0 * (p * u + q * w)), Finite(p * p + q * q)))
        if (problem.IsAfterStarts(d))
            meetings.push_back(
                problem.MeetingAfter(d, {speed, DirectionOf(problem.relative.LaunchAfter(d))}));
    return meetings;
}

/// The launch has the known direction (c, s): D = (p s - q c) / (w c - u s).
Meetings WithAngle(const Problem& problem) {
    const auto& [p, q, u, w] = problem.relative;
    const double angle = *problem.second.second;
    const double c = numeric::CosD(angle);
    const double s = numeric::SinD(angle);
    if (IsZero(w * c - u * s))
        return {};
    const double d = Finite((p * s - q * c) / (w * c - u * s));
    if (!problem.IsAfterStarts(d))
        return {};
    const auto [vx, vy] = problem.relative.LaunchAfter(d);
    const double speed = Finite(vx * c + vy * s);
    if (!(speed > 0.0))
        return {};
    return {problem.MeetingAfter(d, {speed, angle})};
}

Meetings AtTime(const Problem& problem, double time) {
    const double d = time - problem.second.start->t;
    const PolarVelocity launch = Polar(problem.relative.LaunchAfter(d));
    return launch.speed > 0.0 ? Meetings{problem.MeetingAfter(d, launch)} : Meetings{};
}

Meetings MeetingsOf(const Problem& problem, LaunchKind kind, const std::optional<double>& time,
                    int decimals) {
    if (kind == LaunchKind::UnknownSpeedAndAngle)
        return AtTime(problem, *time);
    Meetings meetings = kind == LaunchKind::UnknownAngle ? WithSpeed(problem) : WithAngle(problem);
    if (time) {
        const double last_decimal = std::pow(10.0, -decimals);
        std::erase_if(meetings, [&](const Meeting& each) {
            return std::abs(each.time - *time) > last_decimal * (1.0 + kRounding);
        });
    }
    return meetings;
}

void AddMeeting(std::vector<std::string>& report, const Start& start, const Meeting& meeting, int decimals) {
    const auto shown = [decimals](double number) { return Shown(number, decimals); };
    report.insert(report.end(),
                  {"Móvil 2: T!0 = " + shown(start.t) + ", X!0 = " + shown(start.x),
                   "Y!0 = " + shown(start.y) + ", t!c = " + shown(meeting.time), "Se halló:",
                   "V!0 = " + shown(meeting.launch.speed) + ", ;q!2 = " + shown(meeting.launch.angle) + "°",
                   "Chocan en:", "x!c = " + shown(meeting.place.x) + ", y!c = " + shown(meeting.place.y)});
}

std::string QuestionBetween(const Meetings& meetings, int decimals) {
    const auto shown = [decimals](double number) { return text::RoundedText(number, decimals); };
    return "Los móviles chocan cuando\ntc = " + shown(meetings[0].time) +
           " o cuando tc = " + shown(meetings[1].time) +
           ",\nque corresponden a THETA = " + shown(meetings[0].launch.angle) +
           " y THETA = " + shown(meetings[1].launch.angle) +
           "\nPara plantear las ecuaciones con el primer ángulo oprime el botón \"Sí\". Para con el segundo "
           "oprime \"No\".";
}

}  // namespace

WorkedOrRefusal CollideProjectiles(const Equations& first, const Equations& second,
                                   const std::optional<double>& meeting_time, int decimals) {
    if (const char* fault = FaultOf(first, second, meeting_time))
        return text::Refusal{fault};
    const Start& start = *second.launch.start;
    const Flight first_flight = ExactFlight(first);
    const Problem problem = {first_flight, second.launch, RelativeAt(first_flight, start)};
    const Meetings meetings = MeetingsOf(problem, second.kind, meeting_time, decimals);
    if (meetings.empty())
        return text::Refusal{second.kind == LaunchKind::UnknownAngle || meeting_time ? kNone : kNoSolution};
    Worked worked;
    worked.mover = kSecondMover;
    for (const Meeting& meeting : meetings) {
        if (!worked.report.empty())
            worked.report.push_back(kOr);
        AddMeeting(worked.report, start, meeting, decimals);
        worked.launches.push_back(LaunchOf(start, meeting.launch));
    }
    worked.question = meetings.size() == 1 ? kPlantQuestion : QuestionBetween(meetings, decimals);
    return worked;
}

}  // namespace tavrelo::mechanics::projectile
