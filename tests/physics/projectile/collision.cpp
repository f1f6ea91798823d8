// A launch that has to meet another throw.

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
        is_found = is_found || IsSameLaunch(offer, second.law);
    }
    return is_found || !must_be_found ? Right() : Wrong("the launch is not found again");
}

}  // namespace tavrelo::physics
