// Where a throw meets a slope.

#include <algorithm>
#include <cmath>
#include <numbers>

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
    const double slope = std::tan(angle.value * std::numbers::pi / 180);
    const auto clean = [](double value, double scale) { return IsNearlyZero(value, scale) ? 0 : value; };
    const double above =
        clean(law.y0 - foot.y->value - slope * (law.x0 - foot.x->value), law.ScaleOfPlace(0));
    const double rise = clean(law.vy - slope * law.vx, law.ScaleOfSpeed(0));
    const auto times = PlainRoots(-kGravity / 2, rise, above);
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

}  // namespace tavrelo::physics
