// The motion through three points, then planted on a base.

#include <algorithm>
#include <cmath>

#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

/// The equations of a stretch pass each of the typed points.
std::string WhyNotThrough(const motion::Problem& planted, const std::vector<TypedColumn>& columns,
                          double scale) {
    const motion::Motion found = planted.EquationsOf(1, 1).Expanded();
    for (const TypedColumn& column : columns) {
        const double t = column.t.value;
        const Sum sum = SumOf({found.x0, found.v0 * t, found.a * t * t / 2, -column.x.value});
        if (!Holds(sum, scale))
            return column.Told() + " leaves " + sum.Told();
    }
    return {};
}

}  // namespace

Verdict PlayThreePoints(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownMotion law = AnyMotion(chance);
    problem.Type(law.Told());
    MotionSheet sheet(problem);
    std::vector<TypedColumn> columns;
    std::string chosen = "1, 1";
    double scale = 0;
    bool repeats = false;
    for (int k = 0; k < 3; ++k) {
        const double t = BookNumber(chance, 8);
        const Typed x = chance.OneIn(3) ? Rounded(law.X(t), 2) : AllDigits(law.X(t), law.ScaleOfX(t));
        for (const TypedColumn& other : columns)
            repeats = repeats || other.t.value == t;
        columns.push_back({{Form::Number, Significant(t, 15).text, t}, {Form::Number, x.text, x.value}});
        scale = std::max({scale, law.ScaleOfX(t), std::abs(law.a * t * t), std::abs(law.vn * t)});
        const int point = 3 * k + chance.Between(0, 2);
        sheet.TypeColumn(1, point, columns.back());
        chosen += ", " + std::to_string(point);
    }
    const motion::Step step = sheet.Run(motion::Procedure::ThreePoints, chosen);
    if (const std::string* message = MessageOf(step))
        return repeats ? Refused(*message) : Wrong("refused: " + *message);
    const motion::Question* question = QuestionOf(step);
    if (repeats || !question)
        return Wrong("points that tell no motion are answered");
    // Yes, and the base goes to a point of the user's choice.
    sheet.Take(std::get<motion::Outcome>(motion::Continue(sheet.TheMotion(), *question->yes, kManyDecimals)));
    const motion::Step planted =
        sheet.Run(motion::Procedure::ThreePoints, std::to_string(chance.Between(0, 8)));
    if (const std::string* message = MessageOf(planted))
        return Wrong("the base is refused: " + *message);
    const std::string why = WhyNotThrough(std::get<motion::Outcome>(planted).problem, columns, scale);
    return why.empty() ? Right() : Wrong(why);
}

}  // namespace tavrelo::physics
