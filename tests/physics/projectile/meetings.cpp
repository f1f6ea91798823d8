// A launch that has to meet another throw, or an object that moves along the ground.

#include <algorithm>
#include <cmath>

#include "motion/known_motion.h"
#include "motion/motion_sheet.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"
#include "projectile/spoken_numbers.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
using Given = ProjectileSheet::Given;
using projectile::Special;

constexpr double kGravity = 9.8;
constexpr double kPartFoundAgain = 1e-4;
constexpr double kSearchEnds = 1e-6;

/// A launch by speed and angle with this velocity.
TypedThrow PolarThrow(const KnownThrow& start, double vx, double vy) {
    TypedThrow each = {start, SpeedForm::Polar, Significant(std::hypot(vx, vy), 15),
                       Significant(std::atan2(vy, vx) * 180 / M_PI, 15)};
    each.law = ThrowFrom(start, SpeedForm::Polar, each.first.value, each.second.value);
    return each;
}

bool IsFoundAgain(const KnownThrow& offer, const KnownThrow& law) {
    const double scale = law.ScaleOfSpeed(law.t0);
    return Agree(offer.vx, law.vx, kPartFoundAgain, scale) && Agree(offer.vy, law.vy, kPartFoundAgain, scale);
}

/// Two throws meet when they are nearest, if at all: seen from one the other moves evenly.
std::string WhyNoCollision(const KnownThrow& first, const KnownThrow& second,
                           const std::optional<Typed>& tc) {
    const double u = first.vx - second.vx, w = first.Vy(second.t0) - second.vy;
    const double p = first.X(second.t0) - second.x0, q = first.Y(second.t0) - second.y0;
    const double nearest = -(p * u + q * w) / (u * u + w * w);
    const double t = tc ? tc->value : second.t0 + nearest;
    if (!(t > second.t0))
        return "they meet before the launch";
    const double scale = std::max(first.ScaleOfPlace(t), second.ScaleOfPlace(t));
    const Sum across = SumOf({first.X(t), -second.X(t)});
    const Sum up = SumOf({first.Y(t), -second.Y(t)});
    if (!Holds(across, scale))
        return "at t = " + Digits(t) + " x leaves " + across.Told();
    return Holds(up, scale) ? std::string() : "at t = " + Digits(t) + " y leaves " + up.Told();
}

/// Whether the launch of the second throw is well told by its meeting with the first: they do not start
/// together, and none of the two ways to meet is a grazing one or lies along the line of sight.
bool IsTelling(const KnownThrow& first, const KnownThrow& second) {
    const double u = first.vx - second.vx, w = first.Vy(second.t0) - second.vy;
    const double p = first.X(second.t0) - second.x0, q = first.Y(second.t0) - second.y0;
    const double closing = std::hypot(u, w), speed = std::hypot(second.vx, second.vy);
    const double along = (second.vx * w - second.vy * u) / (closing * speed);
    const double toward = (second.vx * u + second.vy * w) / (closing * speed);
    return std::hypot(p, q) > 0.01 && closing > 0.01 && speed > 0.1 && std::abs(along) > 0.01 &&
           std::abs(toward) > 0.01;
}

/// What is unknown of a launch that has to meet something.
struct UnknownRow {
    Given given;
    bool has_time;
};
constexpr UnknownRow kCollisions[] = {{{false, false}, true},
                                      {{true, false}, false},
                                      {{false, true}, false},
                                      {{true, false}, true},
                                      {{false, true}, true}};

}  // namespace

Verdict PlayCollision(Problem& problem) {
    Chance& chance = problem.chance;
    TypedThrow first = AnyThrow(chance, SpeedForm::Polar);
    first.law.t0 = 0;
    const KnownThrow start = AnyThrow(chance, SpeedForm::Polar).law;
    const Typed tc = Rounded(std::max(0.0, start.t0) + chance.Between(0.5, 4.0), 2);
    const double d = tc.value - start.t0;
    const TypedThrow second = PolarThrow(start, (first.law.X(tc.value) - start.x0) / d,
                                         (first.law.Y(tc.value) - start.y0) / d + kGravity / 2 * d);
    const UnknownRow& row = chance.Of(kCollisions);
    const bool is_foreign = chance.OneIn(4);
    const TypedThrow& typed_second = is_foreign ? AnyThrow(chance, SpeedForm::Polar) : second;
    problem.Type(first.law.Told() + " and " + second.law.Told() + " at " + tc.text);
    ProjectileSheet sheet(problem, 2);
    sheet.TypeLaunch(1, first, {});
    sheet.TypeLaunch(2, typed_second, row.given);
    for (const int mover : {1, 2})
        if (const auto message = sheet.Plant(mover))
            return Wrong("refused: " + *message);
    const ProjectileStep step = sheet.Run(Special::Collision, row.has_time ? "tc = " + tc.text : "");
    const bool must_be_found = !is_foreign && !row.has_time && IsTelling(first.law, second.law);
    if (const auto message = MessageOf(step))
        return must_be_found ? Wrong("refused: " + *message) : Refused(*message);
    bool is_found = false;
    for (const KnownThrow& offer : OffersOf(step)) {
        const auto given_time = row.has_time ? std::optional(tc) : std::nullopt;
        // With a speed or an angle given besides, the time is that of a solution to the last decimal.
        const bool is_exact = !row.given.first && !row.given.second;
        if (const std::string why = WhyNoCollision(first.law, offer, is_exact ? given_time : std::nullopt);
            !why.empty())
            return Wrong(offer.Told() + ": " + why);
        is_found = is_found || IsFoundAgain(offer, second.law);
    }
    return is_found || !must_be_found ? Right() : Wrong("the launch is not found again");
}

namespace {

/// What is told of an object on the ground and of the launch that meets it.
struct InterceptionRow {
    Given given;
    bool has_speed;
    bool has_time;
};
constexpr InterceptionRow kInterceptions[] = {{{false, false}, true, true},
                                              {{false, true}, true, false},
                                              {{true, false}, true, false},
                                              {{false, true}, false, true},
                                              {{true, false}, false, true}};

/// Whether a launch is on the ground at a time after it, and with the object there when its speed is known.
/// `time_slack` is what the search for the time may leave of it.
std::string WhyNoMeeting(const KnownThrow& law, const std::optional<Typed>& u, double t, double time_slack) {
    const double d = t - law.t0;
    if (!(d > 0))
        return "they meet before the launch";
    const auto is_left = [&](const Sum& sum) {
        return !Holds(sum, law.ScaleOfPlace(t)) && std::abs(sum.Value()) > time_slack * law.ScaleOfSpeed(t);
    };
    const Sum up = SumOf({law.y0, law.vy * d, -kGravity / 2 * d * d});
    if (is_left(up))
        return "at t = " + Digits(t) + " y leaves " + up.Told();
    const Sum across = SumOf({law.x0, law.vx * d, u ? -u->value * t : -law.X(t)});
    return is_left(across) ? "at t = " + Digits(t) + " x leaves " + across.Told() : "";
}

/// The times of the report, one for each launch; the given one when it has none.
std::vector<double> MeetingTimesIn(const std::vector<std::string>& lines) {
    std::vector<double> times;
    for (const std::string& line : lines)
        if (line.find("Alcance") != std::string::npos)
            times.push_back(*NumberAfter(line, "t!c"));
    return times;
}

std::string ObjectText(const InterceptionRow& row, const Typed& u, const Typed& tc) {
    std::string text = row.has_speed ? "u = " + u.text : "";
    if (row.has_time)
        text += (text.empty() ? "" : ", ") + ("tc = " + tc.text);
    return text;
}

}  // namespace

Verdict PlayInterception(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownThrow start = AnyThrow(chance, SpeedForm::Polar).law;
    const Typed tc = Rounded(std::max(0.0, start.t0) + chance.Between(0.5, 5.0), 2);
    const Typed u = Significant(BookNumber(chance, 15), 15);
    const double d = tc.value - start.t0;
    const TypedThrow launch =
        PolarThrow(start, (u.value * tc.value - start.x0) / d, kGravity / 2 * d - start.y0 / d);
    const InterceptionRow& row = chance.Of(kInterceptions);
    const bool is_foreign = chance.OneIn(4);
    const TypedThrow typed = is_foreign ? AnyThrow(chance, SpeedForm::Polar) : launch;
    problem.Type(launch.law.Told() + ", u = " + u.text + ", tc = " + tc.text);
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, typed, row.given);
    if (const auto message = sheet.Plant())
        return Wrong("refused: " + *message);
    ProjectileStep step = sheet.Run(Special::Interception, ObjectText(row, u, tc));
    const bool is_searched = EventOf<projectile::AskLimit>(step) != nullptr;
    if (const auto* asked = EventOf<projectile::AskLimit>(step))
        step = sheet.Continue(asked->request, Rounded(std::abs(start.t0) + 12, 1).text);
    // A level launch says nothing of its speed by its height, and an upright one nothing by its place.
    const bool is_telling = std::abs(launch.law.vy) > 0.1 && std::abs(launch.law.vx) > 0.1;
    const bool must_be_found = !is_foreign && !is_searched && is_telling;
    if (const auto message = MessageOf(step))
        return must_be_found ? Wrong("refused: " + *message) : Refused(*message);
    bool is_found = false;
    const auto offers = OffersOf(step);
    const auto times = MeetingTimesIn(ReportOf(step));
    for (std::size_t k = 0; k < offers.size(); ++k) {
        const double t = row.has_time ? tc.value : times.at(k);
        const std::string why = WhyNoMeeting(offers[k], row.has_speed ? std::optional(u) : std::nullopt, t,
                                             is_searched ? kSearchEnds : 0);
        if (!why.empty())
            return Wrong(offers[k].Told() + ": " + why);
        is_found = is_found || IsFoundAgain(offers[k], launch.law);
    }
    return is_found || !must_be_found ? Right() : Wrong("the launch is not found again");
}

}  // namespace tavrelo::physics
