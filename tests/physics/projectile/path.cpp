// The length of the path of a throw.

#include <cmath>

#include "motion/known_motion.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"
#include "projectile/spoken_numbers.h"

namespace tavrelo::physics {
namespace {

constexpr double kLeastVx = 0.01;

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
