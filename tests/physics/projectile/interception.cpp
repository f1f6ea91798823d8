// A launch that has to meet an object on the ground.

#include <algorithm>
#include <cmath>

#include "motion/known_motion.h"
#include "motion/motion_sheet.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
using Given = ProjectileSheet::Given;
using projectile::Special;

constexpr double kSearchEnds = 1e-6;

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

/// Whether a launch is on the ground at a time after it, with the object there. `time_slack` is what the
/// search for the time may leave of it.
std::string WhyNoMeeting(const KnownThrow& law, double object_speed, double t, double time_slack) {
    const double d = t - law.t0;
    if (!(d > 0))
        return "they meet before the launch";
    const auto is_left = [&](const Sum& sum) {
        return !Holds(sum, law.ScaleOfPlace(t)) && std::abs(sum.Value()) > time_slack * law.ScaleOfSpeed(t);
    };
    const Sum up = SumOf({law.y0, law.vy * d, -kGravity / 2 * d * d});
    if (is_left(up))
        return "at t = " + Digits(t) + " y leaves " + up.Told();
    const Sum across = SumOf({law.x0, law.vx * d, -object_speed * t});
    return is_left(across) ? "at t = " + Digits(t) + " x leaves " + across.Told() : "";
}

/// The times of the report, one for each launch; none where it is given.
std::vector<double> MeetingTimesIn(const std::vector<std::string>& lines) {
    std::vector<double> times;
    for (const std::string& line : lines)
        if (line.find("Alcance") != std::string::npos)
            times.push_back(*NumberAfter(line, "t!c"));
    return times;
}

/// The speeds of the object in the report, one for each launch.
std::vector<double> ObjectSpeedsIn(const std::vector<std::string>& lines) {
    std::vector<double> speeds;
    for (const std::string& line : lines)
        if (line.starts_with("Solución"))
            if (const auto speed = NumberAfter(line, "u"))
                speeds.push_back(*speed);
    return speeds;
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
    const auto speeds = ObjectSpeedsIn(ReportOf(step));
    for (std::size_t k = 0; k < offers.size(); ++k) {
        const double t = row.has_time ? tc.value : times.at(k);
        const double object_speed = row.has_speed ? u.value : speeds.at(k);
        const std::string why = WhyNoMeeting(offers[k], object_speed, t, is_searched ? kSearchEnds : 0);
        if (!why.empty())
            return Wrong(offers[k].Told() + ": " + why);
        is_found = is_found || IsSameLaunch(offers[k], launch.law);
    }
    return is_found || !must_be_found ? Right() : Wrong("the launch is not found again");
}

}  // namespace tavrelo::physics
