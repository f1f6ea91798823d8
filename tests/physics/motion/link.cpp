// Two stretches of a mover solved as one motion, one datum missing.

#include <algorithm>
#include <cmath>

#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

constexpr int kJunction = 3;
constexpr double kPartFoundAgain = 1e-4;
constexpr double kSlackOfTimes = 1e-7;

enum class Missing { FirstAcceleration, SecondAcceleration, FinalTime, FinalPlace, FinalSpeed };
constexpr Missing kMissing[] = {Missing::FirstAcceleration, Missing::SecondAcceleration, Missing::FinalTime,
                                Missing::FinalPlace, Missing::FinalSpeed};

/// Two motions, the second from the junction on.
struct KnownLink {
    KnownMotion first;
    double second_acceleration = 0;
    double tb = 0;
    double tc = 0;

    KnownMotion Second() const { return {tb, first.X(tb), first.V(tb), second_acceleration}; }
    double Scale() const { return std::max(first.ScaleOfX(tb), Second().ScaleOfX(tc)); }
};

/// What of a link was typed.
struct TypedLink {
    std::optional<double> a1, a2, tc, xc, vc;
};

TypedDatum NumberDatum(double value, double scale, Precision precision) {
    const Typed typed = precision == Precision::AllDigits ? AllDigits(value, scale) : Rounded(value, 2);
    return {Form::Number, typed.text, typed.value};
}

/// Fills the sheet, `missing` left out.
TypedLink TypeLink(MotionSheet& sheet, const KnownLink& link, Missing missing, Precision precision, int a,
                   int c) {
    const KnownMotion second = link.Second();
    TypedLink typed;
    sheet.TypeBase(1, a, link.first, true);
    const auto accelerate = [&](int stretch, double value, Missing datum, std::optional<double>& place) {
        const Typed number = Significant(value, 15);
        sheet.TypeAcceleration(1, stretch, missing == datum ? "" : number.text);
        if (missing != datum)
            place = number.value;
    };
    accelerate(1, link.first.a, Missing::FirstAcceleration, typed.a1);
    accelerate(2, link.second_acceleration, Missing::SecondAcceleration, typed.a2);
    TypedColumn column;
    const auto fill = [&](TypedDatum& cell, double value, double scale, Missing datum,
                          std::optional<double>& place) {
        if (missing == datum)
            return;
        cell = NumberDatum(value, scale, precision);
        place = cell.value;
    };
    fill(column.t, link.tc, std::abs(link.tc), Missing::FinalTime, typed.tc);
    fill(column.x, second.X(link.tc), link.Scale(), Missing::FinalPlace, typed.xc);
    fill(column.v, second.V(link.tc), second.ScaleOfV(link.tc), Missing::FinalSpeed, typed.vc);
    sheet.TypeColumn(1, c, column);
    return typed;
}

std::string WhyNoLeg(const motion::FoundPoint& from, double acceleration, const motion::FoundPoint& to,
                     double scale) {
    const double d = to.t - from.t;
    if (d < -kSlackOfTimes)
        return "a time runs back";
    const Sum place = SumOf({from.x, from.v * d, acceleration * d * d / 2, -to.x});
    const Sum speed = SumOf({from.v, acceleration * d, -to.v});
    if (!Holds(place, scale))
        return "a place leaves " + place.Told();
    return Holds(speed, scale) ? std::string() : "a speed leaves " + speed.Told();
}

std::string WhyNoLink(const motion::Linked& found, const KnownMotion& first, const TypedLink& typed,
                      double scale) {
    const auto differs = [](const std::optional<double>& datum, double value) {
        return datum && *datum != value;
    };
    if (found.start.t != first.tn || found.start.x != first.xn || found.start.v != first.vn ||
        differs(typed.a1, found.first_acceleration) || differs(typed.a2, found.second_acceleration) ||
        differs(typed.tc, found.end.t) || differs(typed.xc, found.end.x) || differs(typed.vc, found.end.v))
        return "a datum is changed";
    std::string why = WhyNoLeg(found.start, found.first_acceleration, found.junction, scale);
    return why.empty() ? WhyNoLeg(found.junction, found.second_acceleration, found.end, scale) : why;
}

std::vector<motion::Linked> SolutionsOf(const motion::Step& step) {
    std::vector<motion::Linked> solutions;
    if (const motion::Question* question = QuestionOf(step))
        for (const auto& answer : {question->yes, question->no}) {
            if (const auto* take = answer ? std::get_if<motion::TakeLinkRequest>(&*answer) : nullptr)
                solutions.push_back(take->linked);
            if (const auto* plant = answer ? std::get_if<motion::PlantLinkRequest>(&*answer) : nullptr)
                solutions.push_back(plant->linked);
        }
    return solutions;
}

/// Where the junction is well told by the data: both stretches last, and their accelerations differ.
bool IsRegular(const KnownLink& link) {
    const double change = std::abs(link.second_acceleration - link.first.a);
    return link.tb - link.first.tn > 0.1 && link.tc - link.tb > 0.1 && change > 0.1 &&
           std::abs(link.first.V(link.tb)) > 0.01;
}

}  // namespace

Verdict PlayLink(Problem& problem) {
    Chance& chance = problem.chance;
    KnownLink link = {AnyMotion(chance), BookNumber(chance, 8)};
    link.tb = link.first.tn + std::abs(BookNumber(chance, 6));
    link.tc = link.tb + std::abs(BookNumber(chance, 6));
    const Missing missing = chance.Of(kMissing);
    const Precision precision = chance.OneIn(4) ? Precision::Rounded : Precision::AllDigits;
    problem.Type(link.first.Told() + "; from " + Digits(link.tb) + " to " + Digits(link.tc) + " with " +
                 Digits(link.second_acceleration));
    MotionSheet sheet(problem, {kJunction});
    const int a = chance.Between(0, kJunction - 1);
    const int c = chance.Between(kJunction + 1, 8);
    const TypedLink typed = TypeLink(sheet, link, missing, precision, a, c);
    const bool is_regular = IsRegular(link) && precision == Precision::AllDigits;
    const motion::Step step = sheet.ClickPair(motion::Procedure::Link, {{1, 1, a}, {1, 2, c}});
    if (const std::string* message = MessageOf(step))
        return is_regular ? Wrong("refused: " + *message) : Refused(*message);
    const auto solutions = SolutionsOf(step);
    bool is_found = false;
    for (const motion::Linked& found : solutions) {
        if (const std::string why = WhyNoLink(found, link.first, typed, link.Scale()); !why.empty())
            return Wrong(why);
        is_found = is_found || (Agree(found.junction.t, link.tb, kPartFoundAgain, link.tc) &&
                                Agree(found.end.x, link.Second().X(link.tc), kPartFoundAgain, link.Scale()));
    }
    return is_found || !is_regular ? Right() : Wrong("the motion is not found again");
}

}  // namespace tavrelo::physics
