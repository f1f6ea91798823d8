// Where two trajectories cross, and whether the movers collide there.

#include <algorithm>
#include <cmath>

#include "motion/known_motion.h"
#include "projectile/plain_roots.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"
#include "projectile/spoken_numbers.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
using projectile::Special;

constexpr double kLeastVx = 0.01;

/// A throw in components that is where another one is at a time.
TypedThrow ThrowToMeet(const TypedThrow& plain, const KnownThrow& first, double t) {
    const double d = t - plain.law.t0;
    TypedThrow each = plain;
    each.first = Significant((first.X(t) - plain.law.x0) / d, 15);
    each.second = Significant((first.Y(t) - plain.law.y0) / d + kGravity / 2 * d, 15);
    each.law = ThrowFrom(plain.law, SpeedForm::Components, each.first.value, each.second.value);
    return each;
}

/// y = a x^2 + b x + c.
struct Curve {
    double a, b, c;
};
Curve CurveOf(const KnownThrow& law) {
    const double a = -kGravity / (2 * law.vx * law.vx), slope = law.vy / law.vx;
    return {a, slope - 2 * a * law.x0, law.y0 - slope * law.x0 + a * law.x0 * law.x0};
}

/// Where two trajectories plainly cross; nothing when it is not plain whether they do.
std::optional<std::vector<double>> PlainCrossings(const KnownThrow& first, const KnownThrow& second) {
    const Curve one = CurveOf(first), other = CurveOf(second);
    if (Agree(one.a, other.a, 0.01))
        return std::nullopt;
    return PlainRoots(one.a - other.a, one.b - other.b, one.c - other.c);
}

/// A place of a report with the times at which the movers pass it.
struct ToldCrossing {
    double x, y, first_time, second_time;
};
std::vector<ToldCrossing> CrossingsIn(const std::vector<std::string>& lines, bool is_collision) {
    std::vector<ToldCrossing> crossings;
    for (std::size_t k = 1; k + 1 < lines.size(); k += 3) {
        const auto place = NumbersIn(lines[k]);
        const auto times = NumbersIn(lines[k + 1]);
        const double first_time = is_collision ? times.at(0) : times.at(times.size() - 2);
        crossings.push_back({place.at(0), place.at(1), first_time, times.back()});
    }
    return crossings;
}

Verdict Judge(const ProjectileStep& step, const KnownThrow& first, const KnownThrow& second, bool collide) {
    const bool is_upright = std::min(std::abs(first.vx), std::abs(second.vx)) < kLeastVx;
    const bool is_parallel = Agree(std::abs(first.vx), std::abs(second.vx), 0.01, 1);
    const bool must_collide = collide && !is_upright && !is_parallel;
    const auto plain = is_upright ? std::nullopt : PlainCrossings(first, second);
    if (const auto message = MessageOf(step))
        return must_collide || (plain && !plain->empty()) ? Wrong("refused: " + *message) : Refused(*message);
    if (plain && plain->empty())
        return Wrong("trajectories cross that do not");
    const auto lines = ReportOf(step);
    const bool is_collision = lines.front().starts_with("Los móviles chocan");
    std::vector<double> told;
    for (const ToldCrossing& each : CrossingsIn(lines, is_collision)) {
        std::string why = WhyNotThere(first, each.first_time, each.x, each.y);
        if (why.empty())
            why = WhyNotThere(second, each.second_time, each.x, each.y);
        if (!why.empty())
            return Wrong(why);
        told.push_back(each.x);
    }
    if (plain && !is_collision)  // a collision is told alone
        for (const double x : *plain)
            if (!Contains(told, x, 1 + std::abs(first.x0) + std::abs(second.x0)))
                return Wrong("the crossing at x = " + Digits(x) + " is not told");
    return is_collision || !must_collide ? Right() : Wrong("a collision is not told");
}

}  // namespace

Verdict PlayCrossing(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow first = AnyThrow(chance, chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components);
    TypedThrow second = AnyThrow(chance, SpeedForm::Components);
    const bool collide = chance.OneIn(3);
    const double latest = std::max(first.law.t0, second.law.t0);
    if (collide)
        second = ThrowToMeet(second, first.law, Significant(latest + chance.Between(0.5, 4.0), 6).value);
    problem.Type(first.law.Told() + " and " + second.law.Told());
    ProjectileSheet sheet(problem, 2);
    sheet.TypeLaunch(1, first, {});
    sheet.TypeLaunch(2, second, {});
    for (const int mover : {1, 2})
        if (const auto message = sheet.Plant(mover))
            return Wrong("refused: " + *message);
    return Judge(sheet.Run(Special::Crossing, ""), first.law, second.law, collide);
}

}  // namespace tavrelo::physics
