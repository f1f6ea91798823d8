// Equations whose base speed and acceleration are both unknown: what each set of data states, and two such
// statements solved as a system.

#include <algorithm>
#include <cmath>

#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"
#include "motion/parameter_sets.h"
#include "motion/stated_equation.h"
#include "motion/systems.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

constexpr int kBase = 0;
constexpr double kPartFoundAgain = 1e-6;

MotionSheet PlantedSheet(Problem& problem, const KnownMotion& law) {
    MotionSheet sheet(problem);
    sheet.TypeBase(1, kBase, law, false);
    sheet.Plant({1, 1, kBase});
    return sheet;
}

/// What a click on the end of an interval answers.
motion::Step ClickEnd(MotionSheet& sheet, const TypedInterval& typed, int end) {
    sheet.TypeColumn(1, typed.start_point, typed.start);
    sheet.TypeColumn(1, end, typed.end);
    return sheet.Click(motion::Procedure::SubstituteWithParameters, {1, 1, end});
}

/// t, x and v of one point tell both at once.
Verdict PlayWholePoint(Problem& problem, const KnownInterval& source) {
    constexpr DataForms kWholePoint = {"t, x, v",    Form::None,   Form::None,  Form::None,
                                       Form::Number, Form::Number, Form::Number};
    const KnownMotion& law = source.motion;
    MotionSheet sheet = PlantedSheet(problem, law);
    const TypedInterval typed = TypeInterval(kWholePoint, source, 1, Precision::AllDigits, problem.chance);
    sheet.TypeColumn(1, 2, typed.end);
    const motion::Step step = sheet.Click(motion::Procedure::SubstituteWithParameters, {1, 1, 2});
    const bool is_base = source.tf == law.tn;
    if (const std::string* message = MessageOf(step))
        return is_base ? Refused(*message) : Wrong("refused: " + *message);
    const auto offers = OffersOf(step);
    if (offers.size() != 1)
        return Wrong("no motion is offered");
    const std::string why = WhyNot(offers.front(), typed, source.tf, source.tf);
    return why.empty() ? Right() : Wrong(why);
}

/// The acceleration alone is told.
Verdict JudgeOffer(const motion::Step& step, const KnownInterval& source) {
    const auto offers = OffersOf(step);
    if (offers.empty())
        return Right();
    const double scale = source.ScaleOfV();
    return Agree(offers.front().a, source.motion.a, kPartFoundAgain, scale)
               ? Right()
               : Wrong("a = " + Digits(offers.front().a) + " is offered");
}

/// The largest factor among the data, at least 1: by its square it enlarges the rounding of the others.
double LargestFactor(const TypedInterval& typed) {
    double largest = 1;
    for (const TypedDatum& datum : {typed.end.t, typed.end.x, typed.end.v})
        if (datum.form == Form::Factor)
            largest = std::max(largest, std::abs(datum.value));
    return largest;
}

/// What a set of data says of both unknowns: an equation, or that they are open, or the message.
struct Statement {
    std::optional<StatedEquation> equation;
    std::string text;
};
Statement StatementOf(const motion::Step& step) {
    if (const std::string* message = MessageOf(step))
        return {std::nullopt, *message};
    const auto lines = ReportOf(step);
    if (lines.size() < 3)
        return {};
    return {ReadEquation(lines[2], kBase), lines[2]};
}

}  // namespace

Verdict PlayBothUnknown(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownInterval source = PlainInterval(chance);
    problem.Type(source.Told());
    if (chance.OneIn(8))
        return PlayWholePoint(problem, source);
    const ParameterSet& set = chance.Of(ParameterSets());
    if (!HasFactors(set.forms, source))
        return Right();
    MotionSheet sheet = PlantedSheet(problem, source.motion);
    const TypedInterval typed = TypeInterval(set.forms, source, 1, Precision::AllDigits, chance);
    const motion::Step step = ClickEnd(sheet, typed, 2);
    const auto [equation, text] = StatementOf(step);
    if (!equation)
        return Refused(text);
    const Sum sum = equation->For(source.motion.vn, source.motion.a);
    const double factor = LargestFactor(typed);
    if (!Holds(sum, factor * factor * source.ScaleOfX() * (1 + source.ScaleOfX())))
        return Wrong(text + " leaves " + sum.Told());
    return JudgeOffer(step, source);
}

Verdict PlayTwoPoints(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownMotion law = AnyMotion(chance);
    problem.Type(law.Told());
    MotionSheet sheet = PlantedSheet(problem, law);
    std::vector<StatedEquation> equations;
    for (int point = 1; point <= 3; point += 2) {
        const ParameterSet& set = chance.Of(ParameterSets());
        const KnownInterval source = {law, BookNumber(chance, 8), BookNumber(chance, 8)};
        if (!HasFactors(set.forms, source))
            return Right();
        const TypedInterval typed = TypeInterval(set.forms, source, point, Precision::AllDigits, chance);
        const auto [equation, text] = StatementOf(ClickEnd(sheet, typed, point + 1));
        if (!equation)
            return Refused(text);
        equations.push_back(*equation);
    }
    return SolveAsSystem(sheet, equations[0], equations[1], {law.vn, law.a});
}

}  // namespace tavrelo::physics
