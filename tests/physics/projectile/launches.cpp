// The equations of a launch as they are planted, and launches found from what is told of the whole flight.

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

constexpr double kPart = 1e-8;
constexpr double kLeastVx = 0.5;

/// The equations of a report by their left sides; an empty text for one that is missing.
std::string LineOf(const std::vector<std::string>& lines, const std::string& left) {
    for (const std::string& line : lines)
        if (line.starts_with(left + " = "))
            return line;
    return {};
}

/// Whether a planted report tells the throw at a time.
std::string WhyNotTold(const std::vector<std::string>& lines, const KnownThrow& law, double t) {
    const double places = law.ScaleOfPlace(t), speeds = law.ScaleOfSpeed(t);
    struct Row {
        const char* left;
        const char* variable;
        double at;
        double value;
        double scale;
    };
    const Row rows[] = {{"x", "t", t, law.X(t), places},
                        {"y", "t", t, law.Y(t), places},
                        {"v!x", "t", t, law.vx, speeds},
                        {"v!y", "t", t, law.Vy(t), speeds}};
    for (const Row& row : rows) {
        const std::string line = LineOf(lines, row.left);
        if (line.empty() ||
            !Agree(ReadPolynomial(line, row.variable).At(row.at), row.value, kPart, row.scale))
            return line + " is not " + Digits(row.value) + " at " + Digits(row.at);
    }
    return {};
}

/// The reach of a throw upward, in the last line.
std::string WhyNotItsReach(const std::vector<std::string>& lines, const KnownThrow& law) {
    const bool has_reach = lines.back().starts_with("R = ");
    if (law.vy <= 0)
        return has_reach ? "a throw that does not rise has a reach" : "";
    const auto numbers = NumbersIn(lines.back());
    const double time = 2 * law.vy / kGravity;
    const double scale = law.ScaleOfPlace(law.t0 + time);
    if (!has_reach || numbers.size() != 3 || !Agree(numbers[0], law.vx * time, kPart, scale) ||
        !Agree(numbers[1], time, kPart, 1) ||
        !Agree(numbers[2], law.vy * law.vy / (2 * kGravity), kPart, scale))
        return "the reach is not that of the throw: " + lines.back();
    return {};
}

Verdict JudgeLaunch(const ProjectileStep& step, const KnownThrow& law, bool is_telling) {
    if (const auto message = MessageOf(step))
        return is_telling ? Wrong("refused: " + *message) : Refused(*message);
    const auto offers = OffersOf(step);
    if (offers.size() != 1)
        return Wrong("no launch is offered");
    const double scale = law.ScaleOfSpeed(law.t0);
    const KnownThrow& offer = offers.front();
    if (is_telling && (!Agree(offer.vx, law.vx, 1e-6, scale) || !Agree(offer.vy, law.vy, 1e-6, scale)))
        return Wrong("another launch: " + offer.Told());
    return Right();
}

std::string List(std::initializer_list<std::string> texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : ", ") + text;
    return list;
}

/// The parabola through three places, in any order of the points.
Verdict PlayThreePlaces(Problem& problem, const KnownThrow& law, bool is_rounded) {
    Chance& chance = problem.chance;
    ProjectileSheet sheet(problem);
    std::vector<TypedPoint> points;
    double t = law.t0;
    for (int point = 0; point < 3; ++point) {
        TypedPoint typed = TypePair(DataPair::XY, law, t, is_rounded);
        if (point == 0)
            typed.t = AllDigits(t, std::abs(t));
        sheet.TypePoint(1, point + 1, typed);
        points.push_back(typed);
        t += 0.1 + std::abs(BookNumber(chance, 3));
    }
    const ProjectileStep step = sheet.Run(Special::ThreePoints, "1, 1, 2, 3");
    const bool is_telling = !is_rounded && std::abs(law.vx) > kLeastVx;
    if (const auto message = MessageOf(step))
        return is_telling ? Wrong("refused: " + *message) : Refused(*message);
    for (const KnownThrow& offer : OffersOf(step))
        for (const TypedPoint& point : points)
            if (const std::string why = WhyNotMet(offer, point, Direction::ByTangent); !why.empty())
                return Wrong(offer.Told() + ": " + why);
    return JudgeLaunch(step, law, is_telling);
}

Verdict PlayRangeRatio(Problem& problem, const TypedThrow& launch) {
    const KnownThrow& law = launch.law;
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {true, false});
    const double ratio = law.vy == 0 ? 0 : 4 * law.vx / law.vy;
    const ProjectileStep step = sheet.Run(Special::RangeRatio, "1, " + Significant(ratio, 15).text);
    return JudgeLaunch(step, law, law.vy > 0.1 && std::abs(ratio) > 1e-3);
}

Verdict PlayFlightTime(Problem& problem, const TypedThrow& launch) {
    const KnownThrow& law = launch.law;
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {false, false});
    const double time = 2 * law.vy / kGravity;
    const ProjectileStep step = sheet.Run(
        Special::FlightTimeAndRange,
        List({"1", Significant(time, 15).text, AllDigits(law.vx * time, law.ScaleOfPlace(time)).text}));
    return JudgeLaunch(step, law, law.vy > 0.1);
}

/// With the decimals of a usual report six are kept: enough for the third one after some seconds.
std::string WhyUsualDecimalsAreNotEnough(const ProjectileSheet& sheet, const KnownThrow& law, double t) {
    constexpr int kUsualDecimals = 3;
    constexpr double kLostAtMost = 5e-5;
    const auto planted =
        projectile::ClickPoint(sheet.TheProjectile(), projectile::Procedure::Plant, {1, 0}, kUsualDecimals);
    const auto& flight = std::get<projectile::Outcome>(planted).problem.EquationsOf(1).flight;
    const projectile::State state = projectile::StateAt(flight, t);
    const double lost = std::max(std::abs(state.x - law.X(t)), std::abs(state.y - law.Y(t)));
    return lost <= kLostAtMost ? "" : "with three decimals " + Digits(lost) + " is lost";
}

}  // namespace

Verdict PlayLaunch(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components);
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {});
    const ProjectileStep step = sheet.Click(projectile::Procedure::Plant, 0);
    if (const auto message = MessageOf(step))
        return Wrong("refused: " + *message);
    const auto lines = ReportOf(step);
    const double t = launch.law.t0 + BookNumber(chance, 6);
    std::string why = WhyNotTold(lines, launch.law, t);
    if (why.empty())
        why = WhyNotItsReach(lines, launch.law);
    if (why.empty())
        why = WhyUsualDecimalsAreNotEnough(sheet, launch.law, t);
    // The line of the trajectory stands behind that of the height, with the same left side.
    if (why.empty() && std::abs(launch.law.vx) > kLeastVx) {
        const std::string line = lines[6];
        const double x = launch.law.X(t);
        const double scale = launch.law.ScaleOfPlace(t) * (1 + std::abs(launch.law.vy / launch.law.vx));
        const double part = 1e-6;  // a square of x far away enlarges the last decimal of its coefficient
        if (!Agree(ReadPolynomial(line, "x").At(x), launch.law.Y(t), part, scale + 1e-6 * x * x))
            why = line + " is not " + Digits(launch.law.Y(t)) + " at " + Digits(x);
    }
    return why.empty() ? Right() : Wrong(why);
}

Verdict PlayWholeFlight(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, SpeedForm::Polar);
    problem.Type(launch.law.Told());
    switch (chance.Below(3)) {
        case 0:
            return PlayThreePlaces(problem, launch.law, chance.OneIn(3));
        case 1:
            return PlayRangeRatio(problem, launch);
        default:
            return PlayFlightTime(problem, launch);
    }
}

}  // namespace tavrelo::physics
