// Where trajectories meet a slope and each other, and how long they are.

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
using projectile::Special;

constexpr double kGravity = 9.8;
constexpr double kLeastVx = 0.01;

/// The roots of a quadratic that are plainly there; nothing when it is not plain that there are or are not.
std::optional<std::vector<double>> PlainRoots(double a, double b, double c) {
    const double square = b * b - 4 * a * c;
    const double size = std::max(b * b, std::abs(4 * a * c));
    if (std::abs(square) < 1e-6 * size)
        return std::nullopt;
    if (square < 0)
        return std::vector<double>{};
    const double sum = -b - std::copysign(std::sqrt(square), b);
    return std::vector{sum / (2 * a), sum == 0 ? 0 : 2 * c / sum};
}

bool Contains(const std::vector<double>& list, double value, double scale) {
    return std::ranges::any_of(list, [&](double each) { return Agree(each, value, 1e-5, scale); });
}

/// Whether a throw is at a place at a time.
std::string WhyNotThere(const KnownThrow& law, double t, double x, double y) {
    TypedPoint point;
    point.t = Typed{Digits(t), t};
    point.x = Typed{Digits(x), x};
    point.y = Typed{Digits(y), y};
    return WhyNotMet(law, point, Direction::ByTangent);
}

}  // namespace

Verdict PlayIncline(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components);
    const KnownThrow& law = launch.law;
    const Typed angle = Rounded(chance.Between(-70.0, 70.0), chance.Between(0, 1));
    const bool from_launch = chance.OneIn(2);
    const TypedPoint foot = from_launch
                                ? TypePair(DataPair::XY, law, law.t0, false)
                                : TypePair(DataPair::XY, AnyThrow(chance, SpeedForm::Polar).law, 0, true);
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {});
    if (const auto message = sheet.Plant())
        return Wrong("refused: " + *message);
    sheet.TypePoint(1, 1, foot);
    const ProjectileStep step = sheet.Run(Special::Incline, "1, 1, " + angle.text);
    // Heights over the line, by the time since the launch.
    const double slope = std::tan(angle.value * M_PI / 180);
    const double above = law.y0 - foot.y->value - slope * (law.x0 - foot.x->value);
    const auto times = PlainRoots(-kGravity / 2, law.vy - slope * law.vx, above);
    const bool is_upright = std::abs(law.vx) < kLeastVx;
    const bool is_hit = times && !times->empty() && !is_upright;
    if (const auto message = MessageOf(step))
        return is_hit ? Wrong("refused: " + *message) : Refused(*message);
    if (times && times->empty())
        return Wrong("a line that is missed is hit");
    std::vector<double> told;
    const auto lines = ReportOf(step);
    for (std::size_t k = 1; k + 1 < lines.size(); k += 3) {
        const auto numbers = NumbersIn(lines[k]);
        const double x = numbers.at(0), y = numbers.at(1), t = numbers.at(2);
        const double range = NumbersIn(lines[k + 1]).at(0);
        told.push_back(t - law.t0);
        if (const std::string why = WhyNotThere(law, t, x, y); !why.empty())
            return Wrong(why);
        const double dx = x - foot.x->value, dy = y - foot.y->value;
        if (!Holds(SumOf({y, -foot.y->value, -slope * x, slope * foot.x->value}), law.ScaleOfPlace(t)) ||
            !Holds(SumOf({range, -std::hypot(dx, dy)}), law.ScaleOfPlace(t)))
            return Wrong("the hit " + lines[k] + " is not on the line");
    }
    if (times && !is_upright)
        for (const double t : *times)
            if (!Contains(told, t, 1 + std::abs(law.t0)))
                return Wrong("the hit at t0 + " + Digits(t) + " is not told");
    return Right();
}

Verdict PlayCrossing(Problem& problem) {
    Chance& chance = problem.chance;
    const auto form = [&] { return chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components; };
    const TypedThrow first = AnyThrow(chance, form());
    TypedThrow second = AnyThrow(chance, SpeedForm::Components);
    const bool collide = chance.OneIn(3);
    const double meeting =
        Significant(std::max(first.law.t0, second.law.t0) + chance.Between(0.5, 4.0), 6).value;
    if (collide) {
        const double d = meeting - second.law.t0;
        second.first = Significant((first.law.X(meeting) - second.law.x0) / d, 15);
        second.second = Significant((first.law.Y(meeting) - second.law.y0) / d + kGravity / 2 * d, 15);
        second.law = ThrowFrom(second.law, SpeedForm::Components, second.first.value, second.second.value);
    }
    problem.Type(first.law.Told() + " and " + second.law.Told());
    ProjectileSheet sheet(problem, 2);
    sheet.TypeLaunch(1, first, {});
    sheet.TypeLaunch(2, second, {});
    if (const auto message = sheet.Plant(1))
        return Wrong("refused: " + *message);
    if (const auto message = sheet.Plant(2))
        return Wrong("refused: " + *message);
    const ProjectileStep step = sheet.Run(Special::Crossing, "");
    const bool is_upright = std::min(std::abs(first.law.vx), std::abs(second.law.vx)) < kLeastVx;
    const bool is_parallel = Agree(std::abs(first.law.vx), std::abs(second.law.vx), 0.01, 1);
    const bool must_collide = collide && !is_upright && !is_parallel;
    if (const auto message = MessageOf(step))
        return must_collide ? Wrong("refused: " + *message) : Refused(*message);
    const auto lines = ReportOf(step);
    const bool is_collision = lines.front().starts_with("Los móviles chocan");
    for (std::size_t k = 1; k + 1 < lines.size(); k += 3) {
        const auto place = NumbersIn(lines[k]);
        const auto times = NumbersIn(lines[k + 1]);
        const double second_time = is_collision ? times.at(0) : times.back();
        const double first_time = is_collision ? times.at(0) : times.at(times.size() - 2);
        std::string why = WhyNotThere(first.law, first_time, place.at(0), place.at(1));
        if (why.empty())
            why = WhyNotThere(second.law, second_time, place.at(0), place.at(1));
        if (!why.empty())
            return Wrong(why);
    }
    return is_collision || !must_collide ? Right() : Wrong("a collision is not told");
}

namespace {

/// The length of a throw's path from its launch to a vertical speed, in closed form.
double PathTo(const KnownThrow& law, double vy) {
    const double v = std::hypot(law.vx, vy);
    const double across = std::abs(law.vx);
    return -(vy * v + across * across * std::asinh(vy / across)) / (2 * kGravity);
}

}  // namespace

Verdict PlayPath(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components);
    const KnownThrow& law = launch.law;
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {});
    if (const auto message = sheet.Plant())
        return Wrong("refused: " + *message);
    double times[2];
    for (int k = 0; k < 2; ++k) {
        const Typed t = Significant(law.t0 + BookNumber(chance, 6), 15);
        times[k] = t.value;
        TypedPoint point;
        point.t = t;
        sheet.TypePoint(1, k + 1, point);
    }
    const ProjectileStep step = sheet.ClickInterval(1, 2);
    const bool is_upright = std::abs(law.vx) < kLeastVx;
    if (const auto message = MessageOf(step))
        return is_upright ? Refused(*message) : Wrong("refused: " + *message);
    const double told = NumbersIn(ReportOf(step).back()).at(0);
    const double known = std::abs(PathTo(law, law.Vy(times[1])) - PathTo(law, law.Vy(times[0])));
    if (!is_upright && !Agree(told, known, 1e-6, 1))
        return Wrong("the length is " + Digits(told) + ", not " + Digits(known));
    return Right();
}

}  // namespace tavrelo::physics
