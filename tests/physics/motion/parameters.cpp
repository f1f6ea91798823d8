// Equations whose base speed or acceleration is unknown, and every set of data that tells it.

#include <algorithm>
#include <cmath>

#include "equations.h"
#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"
#include "motion/parameter_sets.h"
#include "text/utf8.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

constexpr double kPartFoundAgain = 1e-4;

enum class Unknown { Speed, Acceleration };

/// Whether an offered motion is the one from which the data were taken.
bool IsFoundAgain(const KnownInterval& source, const KnownMotion& offer) {
    const double duration = std::max({std::abs(source.ti - offer.tn), std::abs(source.tf - offer.tn)});
    const double speeds = source.ScaleOfV();
    return Agree(offer.vn, source.motion.vn, kPartFoundAgain, speeds) &&
           Agree(offer.a, source.motion.a, kPartFoundAgain, duration > 0 ? speeds / duration : 0);
}

/// A message without the number of the base point, and without a relation between numbers of its own.
std::string MessageWithout(std::string message, int base) {
    constexpr std::string_view kRelationFollows = "Existe solución solamente si";
    if (message.starts_with(kRelationFollows))
        return std::string(kRelationFollows);
    return text::ReplaceAll(message, "v" + std::to_string(base), "v");
}

/// The data say that any speed will do: then three quite different ones must that reach every place.
std::string WhyNotArbitrary(const KnownMotion& law, const TypedInterval& typed) {
    const double farthest = std::abs(typed.start.x.value) + std::abs(typed.end.x.value) + std::abs(law.xn);
    const double enough = std::sqrt(2 * std::abs(law.a) * farthest);
    for (const double speed : {enough + 1, -enough - 2.5, enough + 7.0})
        if (std::string why = WhyNeverPasses({law.tn, law.xn, speed, law.a}, typed); !why.empty())
            return "an arbitrary speed " + Digits(speed) + ": " + why;
    return {};
}

Verdict JudgeRemarks(const motion::Step& step, const KnownMotion& law, const TypedInterval& typed) {
    const auto lines = ReportOf(step);
    if (lines.size() != 3)  // told under a condition that the data do not fulfil
        return Refused(lines.size() > 2 ? lines[2] : "no answer");
    const std::string why = WhyNotArbitrary(law, typed);
    return why.empty() ? Right() : Wrong(why);
}

Verdict Play(Problem& problem, Unknown unknown, const ParameterSet& set, const KnownInterval& source,
             const KnownMotion& law, Precision precision) {
    if (!HasFactors(set.forms, source))
        return Right();
    const bool seeks_speed = unknown == Unknown::Speed;
    MotionSheet sheet(problem);
    const int base = problem.chance.Between(0, 2) * 4;  // beside the interval: 0, 4 or 8
    if (seeks_speed)
        sheet.TypeAcceleration(1, 1, Significant(law.a, 15).text);
    sheet.TypeBase(1, base, law, !seeks_speed);
    sheet.Plant({1, 1, base});
    const int start = problem.chance.Between(1, 3);
    const int end = problem.chance.Between(5, 7);
    const TypedInterval typed = TypeInterval(set.forms, source, start, precision, problem.chance);
    sheet.TypeColumn(1, start, typed.start);
    sheet.TypeColumn(1, end, typed.end);
    const motion::Step step = sheet.Click(motion::Procedure::SubstituteWithParameters, {1, 1, end});

    // A base at rest is a double root of some sets: the rounding of the data can leave it without any.
    const bool is_double = seeks_speed && source.motion.vn == 0 && typed.HasLongNumbers();
    const bool is_open =
        is_double || (seeks_speed ? set.leaves_speed_open(source) : set.leaves_acceleration_open(source));
    const bool is_its_own = law.Told() == source.motion.Told() && precision == Precision::AllDigits;
    if (const std::string* message = MessageOf(step))
        return is_its_own && !is_open ? Wrong("refused: " + *message)
                                      : Refused(MessageWithout(*message, base));
    const std::vector<KnownMotion> offers = OffersOf(step);
    if (offers.empty())
        return is_its_own && !is_open ? Wrong("no value is offered") : JudgeRemarks(step, law, typed);
    bool is_found = false;
    for (const KnownMotion& offer : offers) {
        if (const std::string why = WhyNeverPasses(offer, typed); !why.empty())
            return Wrong("v = " + Digits(offer.vn) + ", a = " + Digits(offer.a) + ": " + why);
        is_found = is_found || IsFoundAgain(source, offer);
    }
    return is_found || is_open || !is_its_own ? Right() : Wrong("the motion is not found again");
}

Verdict PlayUnknown(Problem& problem, Unknown unknown) {
    Chance& chance = problem.chance;
    const ParameterSet& set = chance.Of(ParameterSets());
    const bool is_foreign = chance.OneIn(4);
    const KnownInterval source = is_foreign ? PlainInterval(chance) : AnyInterval(chance);
    problem.Type(std::string(set.forms.name) + " of " + source.Told());
    const Precision precision = chance.OneIn(4) ? Precision::Rounded : Precision::AllDigits;
    return Play(problem, unknown, set, source, is_foreign ? AnyMotion(chance) : source.motion, precision);
}

}  // namespace

Verdict PlayUnknownSpeed(Problem& problem) { return PlayUnknown(problem, Unknown::Speed); }

Verdict PlayUnknownAcceleration(Problem& problem) { return PlayUnknown(problem, Unknown::Acceleration); }

}  // namespace tavrelo::physics
