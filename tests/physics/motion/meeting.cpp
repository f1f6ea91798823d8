// Two movers: when their places or speeds have a given difference or ratio.

#include <algorithm>
#include <cmath>

#include "motion/motion_kinds.h"
#include "motion/stretched_motion.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;
using motion::Procedure;

constexpr int kPointsOfFirst = 7;
constexpr double kPart = 1e-7;

/// first = factor * second + difference, of places or of speeds.
struct RelationRow {
    Procedure procedure;
    bool of_places;
    bool is_ratio;
    const char* first;
    const char* second;
};
constexpr RelationRow kRelations[] = {
    {Procedure::PositionDifference, true, false, "x", "X"},
    {Procedure::PositionRatio, true, true, "x", "X"},
    {Procedure::SpeedDifference, false, false, "v", "V"},
    {Procedure::SpeedRatio, false, true, "v", "V"},
};

double ValueOf(const RelationRow& row, const KnownMotion& mover, double t) {
    return row.of_places ? mover.X(t) : mover.V(t);
}

/// What the relation leaves of a mover beside the other: a polynomial in t, seen from t = 0.
struct Rest {
    double half_a, v, x;
};
Rest RestOf(const RelationRow& row, const KnownMotion& first, const KnownMotion& second, double constant) {
    const double factor = row.is_ratio ? constant : 1;
    const double difference = row.is_ratio ? 0 : constant;
    const KnownMotion one = first.From(0), other = second.From(0);
    if (!row.of_places)
        return {0, one.a - factor * other.a, one.vn - factor * other.vn - difference};
    return {(one.a - factor * other.a) / 2, one.vn - factor * other.vn,
            one.xn - factor * other.xn - difference};
}

/// The times that plainly solve the rest: neither double nor lost in rounding.
std::vector<double> PlainRootsOf(const Rest& rest, double scale) {
    constexpr double kClear = 1e-5;
    const double square = rest.v * rest.v - 4 * rest.half_a * rest.x;
    if (std::abs(rest.half_a) < kClear)
        return std::abs(rest.half_a) > 1e-12 || std::abs(rest.v) < kClear ? std::vector<double>{}
                                                                          : std::vector{-rest.x / rest.v};
    if (square < kClear * (rest.v * rest.v + scale * std::abs(rest.half_a)))
        return {};
    const double root = std::sqrt(square);
    return {(-rest.v + root) / (2 * rest.half_a), (-rest.v - root) / (2 * rest.half_a)};
}

struct Answer {
    double t, first, second;
};
std::vector<Answer> AnswersOf(const RelationRow& row, const motion::Step& step) {
    std::vector<Answer> answers;
    for (const std::string& line : ReportOf(step))
        if (line.starts_with("t = "))
            answers.push_back(
                {*NumberAfter(line, "t"), *NumberAfter(line, row.first), *NumberAfter(line, row.second)});
    return answers;
}

/// Whether a stretch of the first mover explains an answer.
std::string WhyNot(const RelationRow& row, const KnownMotion& first, const KnownMotion& second,
                   double constant, double scale, const Answer& answer) {
    const double wanted = row.is_ratio ? constant * answer.second : answer.second + constant;
    if (!Agree(answer.first, ValueOf(row, first, answer.t), kPart, scale) ||
        !Agree(answer.second, ValueOf(row, second, answer.t), kPart, scale))
        return "a mover is not there";
    const Sum sum = SumOf({answer.first, -wanted});
    return Holds(sum, 1e3 * scale) ? std::string() : "the relation leaves " + sum.Told();
}

/// The second mover on a sheet of two.
void PlantSecond(MotionSheet& sheet, const KnownMotion& second) {
    sheet.TypeAcceleration(2, 1, Significant(second.a, 15).text);
    sheet.TypeBase(2, 0, second, true);
    sheet.Plant({2, 1, 0});
}

/// A constant that makes the relation hold at some time of a stretch, or any.
Typed ConstantFor(const RelationRow& row, const StretchedMotion& first, const KnownMotion& second,
                  Chance& chance) {
    const std::size_t k = chance.Below(first.stretches.size());
    const double t = chance.Between(first.times[k], first.times[k + 1]);
    const double one = ValueOf(row, first.stretches[k], t), other = ValueOf(row, second, t);
    if (chance.OneIn(3) || (row.is_ratio && std::abs(other) < 0.01))
        return Significant(BookNumber(chance, 10), 15);
    return Significant(row.is_ratio ? one / other : one - other, 15);
}

/// A relation between two movers with what it takes to judge its answers.
struct KnownRelation {
    const RelationRow& row;
    StretchedMotion first;
    KnownMotion second;
    double constant = 0;
    double scale = 0;
    bool is_end_open = false;  // then the one stretch of the first mover has no limits

    /// What rounding may move a time at a limit.
    double SlackOfTimes() const {
        return 1e-6 * (1 + std::abs(first.times.front()) + std::abs(first.times.back()));
    }
    bool IsWithin(std::size_t stretch, double t, double slack) const {
        return is_end_open || (t >= first.times[stretch] - slack && t <= first.times[stretch + 1] + slack);
    }
};

/// An answer must be explained by a stretch.
std::string WhyNot(const KnownRelation& known, const Answer& answer) {
    std::string why = "it lies outside every stretch";
    for (std::size_t k = 0; k < known.first.stretches.size() && !why.empty(); ++k)
        if (known.IsWithin(k, answer.t, known.SlackOfTimes()))
            why = WhyNot(known.row, known.first.stretches[k], known.second, known.constant, known.scale,
                         answer);
    return why;
}

/// A time that no answer tells, though the relation plainly holds within a stretch.
std::optional<double> MissedBy(const KnownRelation& known, const std::vector<Answer>& answers) {
    const auto is_told = [&](double t) {
        return std::ranges::any_of(
            answers, [&](const Answer& each) { return std::abs(each.t - t) < 1e-4 * (1 + std::abs(t)); });
    };
    for (std::size_t k = 0; k < known.first.stretches.size(); ++k) {
        const Rest rest = RestOf(known.row, known.first.stretches[k], known.second, known.constant);
        for (const double t : PlainRootsOf(rest, known.scale))
            if (known.IsWithin(k, t, -known.SlackOfTimes()) && !is_told(t))
                return t;
    }
    return std::nullopt;
}

}  // namespace

Verdict PlayMeeting(Problem& problem) {
    Chance& chance = problem.chance;
    KnownRelation known = {chance.Of(kRelations), AnyStretches(chance), AnyMotion(chance)};
    problem.Type(known.first.Told() + " and " + known.second.Told());
    known.is_end_open = known.first.stretches.size() == 1 && chance.OneIn(2);
    MotionSheet sheet = MotionSheet::OfTwoMovers(problem, kPointsOfFirst, LimitsOf(known.first));
    PlantStretches(sheet, known.first, known.is_end_open);
    PlantSecond(sheet, known.second);
    const Typed constant = ConstantFor(known.row, known.first, known.second, chance);
    known.constant = constant.value;
    known.scale = std::max(known.first.ScaleOfX(), known.second.ScaleOfX(known.first.times.back())) *
                  std::max(1.0, known.row.is_ratio ? std::abs(constant.value) : 1.0);
    const motion::Step step = sheet.Run(known.row.procedure, constant.text);
    const auto answers = AnswersOf(known.row, step);
    for (const Answer& answer : answers)
        if (const std::string why = WhyNot(known, answer); !why.empty())
            return Wrong("t = " + Digits(answer.t) + ": " + why);
    if (const auto missed = MissedBy(known, answers))
        return Wrong("t = " + Digits(*missed) + " is not told");
    const std::string* message = MessageOf(step);
    return message ? Refused(*message) : Right();
}

}  // namespace tavrelo::physics
