// A launch of which the speed, the angle or a component is unknown, and every pair of data of a point.

#include <algorithm>
#include <cmath>

#include "motion/known_motion.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
using Given = ProjectileSheet::Given;

constexpr double kApart = 1e-3;

enum class Unknown { Speed, Angle, Vx, Vy };

struct UnknownRow {
    Unknown unknown;
    SpeedForm form;
    Given given;
    projectile::Procedure procedure;
    Direction direction;
};
constexpr UnknownRow kRows[] = {
    {Unknown::Speed,
     SpeedForm::Polar,
     {false, true},
     projectile::Procedure::SubstituteInPolar,
     Direction::ByTangent},
    {Unknown::Angle,
     SpeedForm::Polar,
     {true, false},
     projectile::Procedure::SubstituteInPolar,
     Direction::Exact},
    {Unknown::Vx,
     SpeedForm::Components,
     {false, true},
     projectile::Procedure::SubstituteInComponents,
     Direction::ByTangent},
    {Unknown::Vy,
     SpeedForm::Components,
     {true, false},
     projectile::Procedure::SubstituteInComponents,
     Direction::ByTangent},
};

/// A pair of data with the throw and the time from which it is taken.
struct KnownPair {
    DataPair pair;
    KnownThrow law;
    double t = 0;
};

bool IsUpright(double vx, double speed) { return std::abs(vx) <= kApart * speed; }

/// Whether the pair tells the unknown: what the procedures name as degenerate does not.
bool IsTelling(Unknown unknown, const KnownPair& known) {
    const auto& [pair, law, t] = known;
    const double speed = law.Speed(law.t0);
    const bool is_upright = IsUpright(law.vx, speed) || IsUpright(law.vx, law.Speed(t));
    if (t - law.t0 < 0.05 || (HoldsX(pair) && std::abs(law.X(t) - law.x0) < kApart) ||
        (HoldsAngle(pair) && is_upright))
        return false;
    // A height that is just reached, or a level flight, is a double root.
    const bool is_level = std::abs(law.Vy(t)) < kApart * speed;
    const bool starts_level = std::abs(law.vy) < kApart * speed;
    const bool keeps_level = std::abs(law.Y(t) - law.y0) < kApart;
    switch (unknown) {
        case Unknown::Speed:
            return !(pair == DataPair::TimeY && starts_level) && !(HoldsX(pair) && is_upright) &&
                   !(pair == DataPair::YAngle && keeps_level) && !(pair == DataPair::YSpeed && is_level);
        case Unknown::Angle:
            return pair != DataPair::YSpeed;
        case Unknown::Vx:
            // The search for a root goes up from 0, by changes of sign.
            return pair != DataPair::TimeY && pair != DataPair::XSpeed && !(HoldsAngle(pair) && is_level) &&
                   !(HoldsY(pair) && is_level) && !(HoldsSpeed(pair) && is_upright) &&
                   std::abs(law.vx) > kApart;
        case Unknown::Vy:
            break;
    }
    return pair != DataPair::TimeX && std::abs(law.vx) > kApart && !(HoldsSpeed(pair) && is_level) &&
           !(HoldsY(pair) && starts_level);
}

/// Whether a point lies straight over the launch but for its last digits: the angle to it has none to spare.
bool IsAlmostOverStart(const TypedPoint& point, const KnownThrow& law, double t) {
    const double across = point.x ? std::abs(point.x->value - law.x0) : 0;
    return across != 0 && across < 1e-5 * law.ScaleOfPlace(t);
}

/// The answer of a click, the limit of a search typed when it is asked for.
ProjectileStep AnswerOf(ProjectileSheet& sheet, const UnknownRow& row, const KnownThrow& law) {
    const ProjectileStep step = sheet.Click(row.procedure, 2);
    if (const auto* asked = EventOf<projectile::AskLimit>(step))
        return sheet.Continue(asked->request, Rounded(2 * std::abs(law.vx) + 5, 1).text);
    return step;
}

Verdict Play(Problem& problem, const UnknownRow& row) {
    Chance& chance = problem.chance;
    // Mostly metres; at times millimetres or hundreds of kilometres, where only false answers count.
    constexpr double kSizes[] = {1e-3, 0.1, 100, 1e5};
    const double size = chance.OneIn(8) ? chance.Of(kSizes) : 1;
    const TypedThrow launch = InSize(AnyThrow(chance, row.form), size);
    const bool is_foreign = chance.OneIn(4);
    const KnownThrow source = is_foreign ? InSize(AnyThrow(chance, row.form), size).law : launch.law;
    const double after =
        std::sqrt(size) * (chance.OneIn(12) ? BookNumber(chance, 1) : 0.1 + std::abs(BookNumber(chance, 6)));
    const KnownPair known = {chance.Of(kDataPairs), source, Significant(source.t0 + after, 15).value};
    const bool is_rounded = chance.OneIn(4);
    const TypedPoint point = TypePair(known.pair, source, known.t, is_rounded);
    problem.Type(source.Told() + " at " + Digits(known.t));
    if (IsAlmostOverStart(point, launch.law, known.t))
        return Right();  // the last digits of a place decide
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, row.given);
    if (const auto message = sheet.Plant())
        return Refused(*message);
    sheet.TypePoint(1, 2, point);
    const ProjectileStep step = AnswerOf(sheet, row, source);
    const bool must_be_found = !is_foreign && !is_rounded && size == 1 && IsTelling(row.unknown, known);
    if (const auto message = MessageOf(step))
        return must_be_found ? Wrong("refused: " + *message) : Refused(HeadOf(*message));
    const auto offers = OffersOf(step);
    if (offers.empty())
        return Wrong("no launch is offered");
    bool is_found = false;
    for (const KnownThrow& offer : offers) {
        if (const std::string why = WhyNotMet(offer, point, row.direction); !why.empty())
            return Wrong(offer.Told() + ": " + why);
        is_found = is_found || IsSameLaunch(offer, source);
    }
    return is_found || !must_be_found ? Right() : Wrong("the launch is not found again");
}

}  // namespace

Verdict PlayLaunchSpeed(Problem& problem) { return Play(problem, kRows[0]); }
Verdict PlayLaunchAngle(Problem& problem) { return Play(problem, kRows[1]); }
Verdict PlayHorizontalSpeed(Problem& problem) { return Play(problem, kRows[2]); }
Verdict PlayVerticalSpeed(Problem& problem) { return Play(problem, kRows[3]); }

}  // namespace tavrelo::physics
