// A complete motion and what is told of one of its points, or of the interval between two.

#include <algorithm>
#include <cmath>

#include "equations.h"
#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;
namespace points = mechanics::points;

constexpr int kBase = 0;
constexpr double kPartFoundAgain = 1e-4;

/// One datum of a point, and why it may be refused.
struct PointRow {
    DataForms forms;
    bool (*is_undetermined)(const KnownInterval&);
};

bool Never(const KnownInterval&) { return false; }
bool Rests(const KnownInterval& each) { return each.motion.a == 0 && each.motion.vn == 0; }
bool IsUniform(const KnownInterval& each) { return each.motion.a == 0; }

constexpr auto N = Form::None, V = Form::Number, D = Form::Increment, C = Form::Factor;
constexpr PointRow kPointRows[] = {
    {{"t", N, N, N, V, N, N}, Never},
    {{"x", N, N, N, N, V, N}, Rests},
    {{"v", N, N, N, N, N, V}, IsUniform},
};

bool IsInstant(const KnownInterval& each) { return each.ti == each.tf; }
bool KeepsSpeed(const KnownInterval& each) { return IsNearlyZero(each.Dv(), each.ScaleOfV()); }
bool KeepsSpeedSize(const KnownInterval& each) {
    return KeepsSpeed(each) || IsNearlyZero(each.vi() + each.vf(), each.ScaleOfV());
}
/// The times of a motion with this factor and displacement: 1/2 a (C^2 - 1) u^2 + v(0) (C - 1) u.
bool LosesTimes(const KnownInterval& each) {
    const KnownMotion from_zero = each.motion.From(0);
    const bool starts_at_rest = IsNearlyZero(from_zero.vn, each.motion.ScaleOfV(0));
    return IsInstant(each) || (starts_at_rest && (each.motion.a == 0 || each.tf == -each.ti));
}

constexpr PointRow kIntervalRows[] = {
    {{"Dt, Dx", N, N, N, D, D, N}, [](const KnownInterval& s) { return s.motion.a == 0 || IsInstant(s); }},
    {{"Dx, Dv", N, N, N, N, D, D}, KeepsSpeed},
    {{"Dt, C[x]", N, N, N, D, C, N}, [](const KnownInterval& s) { return IsInstant(s) || Rests(s); }},
    {{"Dt, C[v]", N, N, N, D, N, C}, KeepsSpeed},
    {{"Dx, C[t]", N, N, N, C, D, N}, LosesTimes},
    {{"Dx, C[v]", N, N, N, N, D, C}, KeepsSpeedSize},
    {{"Dv, C[t]", N, N, N, C, N, D}, [](const KnownInterval& s) { return s.motion.a == 0 || IsInstant(s); }},
    {{"Dv, C[x]", N, N, N, N, C, D}, KeepsSpeed},
};

bool IsFoundAgain(const KnownInterval& each, double ti, double tf) {
    const double scale = std::max({std::abs(each.ti), std::abs(each.tf), std::abs(each.motion.tn)});
    return Agree(ti, each.ti, kPartFoundAgain, scale) && Agree(tf, each.tf, kPartFoundAgain, scale);
}

/// What a found point says beside the law of motion.
std::string WhyNoPoint(const KnownMotion& law, const motion::FoundPoint& found) {
    const double since = found.t - law.tn;
    const Sum place = SumOf({law.xn, law.vn * since, law.a * since * since / 2, -found.x});
    const Sum speed = SumOf({law.vn, law.a * since, -found.v});
    if (!Holds(place, law.From(0).ScaleOfX(found.t)))
        return "its place leaves " + place.Told();
    return Holds(speed, law.From(0).ScaleOfV(found.t)) ? std::string() : "its speed leaves " + speed.Told();
}

std::string WhyWrong(const KnownMotion& law, const TypedInterval& typed, const motion::FoundSolution& found) {
    const motion::FoundPoint& end = found.second ? *found.second : found.first;
    for (const motion::FoundPoint& point : {found.first, end})
        if (std::string why = WhyNoPoint(law, point); !why.empty())
            return why;
    return WhyNot(law, typed, found.first.t, end.t);
}

/// The point that went to the table, next to the one that the report gives first.
std::string WhyNotInTable(const KnownMotion& law, const motion::Problem& after, int point) {
    const int column = points::ColumnOfPoint(after.configuration, 1, point);
    const auto number = [&](int row) { return after.table.Stored(row, column).Number(); };
    return WhyNoPoint(
        law, {point, number(points::kTimeRow), number(points::kPositionRow), number(points::kSpeedRow)});
}

Verdict Play(Problem& problem, const PointRow& row, const KnownInterval& source, const KnownMotion& law,
             Precision precision) {
    if (!HasFactors(row.forms, source))
        return Right();
    MotionSheet sheet(problem);
    sheet.TypeAcceleration(1, 1, Significant(law.a, 15).text);
    sheet.TypeBase(1, kBase, law, true);
    sheet.Plant({1, 1, kBase});
    const int start = problem.chance.Between(1, 6);
    const int end = problem.chance.Between(start + 1, 8);
    const TypedInterval typed = TypeInterval(row.forms, source, start, precision, problem.chance);
    sheet.TypeColumn(1, end, typed.end);
    const motion::Step step = sheet.Click(motion::Procedure::Substitute, {1, 1, end});
    const bool is_its_own = law.Told() == source.motion.Told() && precision == Precision::AllDigits;
    const bool is_solvable = is_its_own && !row.is_undetermined(source);
    if (const std::string* message = MessageOf(step))
        return is_solvable ? Wrong("refused: " + *message) : Refused(*message);
    const motion::Problem& after = std::get<motion::Outcome>(step).problem;
    bool is_found = false;
    for (const motion::FoundSolution& found : after.results.solutions) {
        if (const std::string why = WhyWrong(law, typed, found); !why.empty())
            return Wrong(why);
        const double tf = found.second ? found.second->t : found.first.t;
        is_found = is_found || IsFoundAgain(source, found.second ? found.first.t : source.ti, tf);
    }
    if (!row.forms.HasTwoPoints())
        if (const std::string why = WhyNotInTable(law, after, end); !why.empty())
            return Wrong("in the table " + why);
    return is_found || !is_solvable ? Right() : Wrong("the motion is not found again");
}

template <std::size_t count>
Verdict PlayRows(Problem& problem, const PointRow (&rows)[count]) {
    Chance& chance = problem.chance;
    const PointRow& row = chance.Of(rows);
    const bool is_foreign = chance.OneIn(4);
    const KnownInterval source = is_foreign ? PlainInterval(chance) : AnyInterval(chance);
    problem.Type(std::string(row.forms.name) + " of " + source.Told());
    const Precision precision = chance.OneIn(4) ? Precision::Rounded : Precision::AllDigits;
    return Play(problem, row, source, is_foreign ? AnyMotion(chance) : source.motion, precision);
}

}  // namespace

Verdict PlayPoint(Problem& problem) { return PlayRows(problem, kPointRows); }

Verdict PlayInterval(Problem& problem) { return PlayRows(problem, kIntervalRows); }

Verdict PlayTurn(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownInterval known = AnyInterval(chance);
    const KnownMotion& law = known.motion;
    MotionSheet sheet(problem);
    sheet.TypeAcceleration(1, 1, Significant(law.a, 15).text);
    sheet.TypeBase(1, kBase, law, true);
    sheet.Plant({1, 1, kBase});
    const int point = chance.Between(1, 8);
    constexpr DataForms kPlaceAndSpeed = {"x, v", N, N, N, N, V, V};
    const TypedInterval typed = TypeInterval(kPlaceAndSpeed, known, point, Precision::AllDigits, chance);
    sheet.TypeColumn(1, point, typed.end);
    const auto step = motion::TurnSpeed(sheet.TheMotion(), {1, 1, point}, kManyDecimals);
    if (!step)
        return Wrong("a point with a speed is not turned");
    if (const std::string* message = MessageOf(*step))
        return law.a == 0 ? Refused(*message) : Wrong("refused: " + *message);
    const motion::Problem& after = std::get<motion::Outcome>(*step).problem;
    const int column = points::ColumnOfPoint(after.configuration, 1, point);
    const double t = after.table.Stored(points::kTimeRow, column).Number();
    const double v = after.table.Stored(points::kSpeedRow, column).Number();
    if (v != -typed.end.v.value)
        return Wrong("the speed is " + Digits(v));
    const std::string why = WhyNoPoint(law, {point, t, typed.end.x.value, v});
    return why.empty() ? Right() : Wrong(why);
}

}  // namespace tavrelo::physics
