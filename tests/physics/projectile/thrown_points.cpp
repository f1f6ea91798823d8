// A complete launch and one datum of a point of it.

#include <algorithm>
#include <cmath>

#include "mechanics/points/table.h"
#include "motion/known_motion.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
namespace points = mechanics::points;

constexpr int kPoint = 3;
constexpr int kStart = 1;
constexpr double kSameTime = 1e-4;

enum class Datum { Time, X, Y, Vy, Angle, Increments, Speed };
constexpr Datum kData[] = {Datum::Time,  Datum::X,          Datum::Y,    Datum::Vy,
                           Datum::Angle, Datum::Increments, Datum::Speed};

/// A point as found: the last two as the mode of its column says.
struct FoundPoint {
    double t, x, y, first, second;
};

FoundPoint PointOf(const projectile::State& state, SpeedForm form) {
    const projectile::Velocity& v = state.velocity;
    if (form == SpeedForm::Components)
        return {state.t, state.x, state.y, v.x, v.y};
    return {state.t, state.x, state.y, std::hypot(v.x, v.y), projectile::DirectionOf(v)};
}

FoundPoint PointInTable(const projectile::Problem& after, int point) {
    const int column = after.ColumnOf(1, point);
    const auto number = [&](int row) { return after.table.Stored(row, column).Number(); };
    return {number(points::kLaunchTimeRow), number(points::kAcrossRow), number(points::kHeightRow),
            number(points::kMagnitudeRow), number(points::kDirectionRow)};
}

/// What a found point leaves of the law of the throw, empty when it is a point of it.
std::string WhyNoPoint(const KnownThrow& law, const FoundPoint& found, SpeedForm form) {
    const auto typed = [](double number) { return Typed{Digits(number), number}; };
    TypedPoint point;
    point.t = typed(found.t);
    point.x = typed(found.x);
    point.y = typed(found.y);
    if (form == SpeedForm::Polar) {
        point.speed = typed(found.first);
        point.angle = typed(found.second);
        return WhyNotMet(law, point, Direction::Exact);
    }
    const double speeds = law.ScaleOfSpeed(found.t);
    const bool has_velocity = Holds(SumOf({law.vx, -found.first}), speeds) &&
                              Holds(SumOf({law.Vy(found.t), -found.second}), speeds);
    return has_velocity ? WhyNotMet(law, point, Direction::Exact) : "its components differ";
}

/// The points that the answer finds: those between which it asks, or the one in the table.
std::vector<FoundPoint> FoundBy(const ProjectileStep& step, SpeedForm form) {
    std::vector<FoundPoint> found;
    if (const auto* question = EventOf<projectile::Question>(step)) {
        for (const auto& answer : {question->yes, question->no})
            found.push_back(PointOf(std::get<projectile::PutPointRequest>(*answer).state, form));
        return found;
    }
    return {PointInTable(std::get<projectile::Outcome>(step).problem, kPoint)};
}

/// The cells of a point with the datum, and the value that it has as typed.
std::vector<std::string> CellsOf(Datum datum, const KnownThrow& source, double t, TypedPoint& point,
                                 Typed& vy, double before) {
    const double places = source.ScaleOfPlace(t), speeds = source.ScaleOfSpeed(t);
    switch (datum) {
        case Datum::Time:
            point.t = AllDigits(t, std::abs(t));
            return {point.t->text, "", "", "", ""};
        case Datum::X:
            point.x = AllDigits(source.X(t), places);
            return {"", point.x->text, "", "", ""};
        case Datum::Y:
            point.y = AllDigits(source.Y(t), places);
            return {"", "", point.y->text, "", ""};
        case Datum::Vy:
            vy = AllDigits(source.Vy(t), speeds);
            return {"", "", "", "", vy.text};
        case Datum::Angle:
            point.angle = AllDigits(source.Angle(t), 180);
            return {"", "", "", "", point.angle->text};
        case Datum::Speed:
            point.speed = AllDigits(source.Speed(t), speeds);
            return {"", "", "", point.speed->text, ""};
        case Datum::Increments:
            break;
    }
    const auto reference = [](const std::string& letter, double change, double scale) {
        const std::string size = AllDigits(std::abs(change), scale).text;
        return letter + std::to_string(kStart) + (change < 0 ? "-" : "+") + size;
    };
    return {reference("t", t - before, std::abs(t) + std::abs(before)), "",
            reference("y", source.Y(t) - source.Y(before), places), "", ""};
}

/// Whether a found point has the datum; the increments are judged apart.
std::string WhyNotTheDatum(Datum datum, const KnownThrow& law, const FoundPoint& found, TypedPoint point,
                           const Typed& vy) {
    point.t = Typed{Digits(found.t), found.t};
    if (datum == Datum::Vy)
        return Holds(SumOf({law.Vy(found.t), -vy.value}), law.ScaleOfSpeed(found.t)) ? "" : "its vy differs";
    return WhyNotMet(law, point, Direction::ByTangent);
}

}  // namespace

Verdict PlayThrownPoint(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components);
    const KnownThrow& law = launch.law;
    const bool is_foreign = chance.OneIn(4);
    const KnownThrow source = is_foreign ? AnyThrow(chance, launch.form).law : law;
    const Datum datum = chance.Of(kData);
    const double t = Significant(source.t0 + BookNumber(chance, 6), 15).value;
    const double before = Significant(t - 0.1 - std::abs(BookNumber(chance, 3)), 15).value;
    const SpeedForm form = datum == Datum::Vy                               ? SpeedForm::Components
                           : datum == Datum::Angle || datum == Datum::Speed ? SpeedForm::Polar
                           : chance.OneIn(2)                                ? SpeedForm::Polar
                                                                            : SpeedForm::Components;
    problem.Type(source.Told() + " at " + Digits(t));
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {});
    if (const auto message = sheet.Plant())
        return Refused(*message);
    TypedPoint point;
    Typed vy;
    sheet.TypeCells(1, kPoint, form, CellsOf(datum, source, t, point, vy, before));
    const ProjectileStep step = sheet.Click(projectile::Procedure::Substitute, kPoint);

    const bool is_upright = std::abs(law.vx) < 1e-3;
    const bool loses_direction = datum == Datum::Angle && std::abs(CosDegrees(source.Angle(t))) < 1e-6;
    // The least speed and the greatest height are double roots: rounding can leave them without any.
    const bool is_double = (datum == Datum::Speed || datum == Datum::Y) && std::abs(source.Vy(t)) < 1e-3;
    const bool must_be_found = !is_foreign && !loses_direction && !is_double &&
                               !(is_upright && (datum == Datum::X || datum == Datum::Angle));
    if (const auto message = MessageOf(step))
        return must_be_found ? Wrong("refused: " + *message) : Refused(*message);
    bool is_found = false;
    for (const FoundPoint& found : FoundBy(step, form)) {
        std::string why = WhyNoPoint(law, found, form);
        if (why.empty() && datum != Datum::Increments)
            why = WhyNotTheDatum(datum, law, found, point, vy);
        if (!why.empty())
            return Wrong(why);
        is_found = is_found || std::abs(found.t - t) < kSameTime * (1 + std::abs(t));
    }
    return is_found || !must_be_found ? Right() : Wrong("the time is not found again");
}

namespace {

/// A whole point of a throw in the form of its launch.
std::vector<std::string> WholePoint(const KnownThrow& law, double t, SpeedForm form) {
    const double places = law.ScaleOfPlace(t), speeds = law.ScaleOfSpeed(t);
    const bool is_polar = form == SpeedForm::Polar;
    return {AllDigits(t, std::abs(t)).text, AllDigits(law.X(t), places).text,
            AllDigits(law.Y(t), places).text, AllDigits(is_polar ? law.Speed(t) : law.vx, speeds).text,
            is_polar ? AllDigits(law.Angle(t), 180).text : AllDigits(law.Vy(t), speeds).text};
}

}  // namespace

Verdict PlayOtherSide(Problem& problem) {
    Chance& chance = problem.chance;
    SpeedForm form = chance.OneIn(2) ? SpeedForm::Polar : SpeedForm::Components;
    const KnownThrow law = AnyThrow(chance, form).law;
    const double t = Significant(law.t0 + BookNumber(chance, 6), 15).value;
    ProjectileSheet sheet(problem);
    sheet.TypeCells(1, kPoint, form, WholePoint(law, t, form));
    projectile::Problem table = sheet.TheProjectile();
    const bool is_toggled = chance.OneIn(2);
    if (is_toggled) {
        const auto toggled =
            projectile::WithModeToggled(table, table.ColumnOf(1, kPoint), ProjectileSheet::kDecimals);
        if (const auto* refusal = std::get_if<text::Refusal>(&toggled))
            return Wrong("refused: " + refusal->text);
        table = std::get<projectile::Problem>(toggled);
        form = form == SpeedForm::Polar ? SpeedForm::Components : SpeedForm::Polar;
        if (const std::string why = WhyNoPoint(law, PointInTable(table, kPoint), form); !why.empty())
            return Wrong("in the other mode " + why);
    }
    const auto moved = projectile::WithOtherSide(table, {1, kPoint}, ProjectileSheet::kDecimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&moved))
        return Wrong("refused: " + refusal->text);
    const FoundPoint found = PointInTable(std::get<projectile::Problem>(moved), kPoint);
    if (const std::string why = WhyNoPoint(law, found, form); !why.empty())
        return Wrong(why);
    return Holds(SumOf({found.y, -law.Y(t)}), law.ScaleOfPlace(found.t)) ? Right()
                                                                         : Wrong("it is at another height");
}

}  // namespace tavrelo::physics
