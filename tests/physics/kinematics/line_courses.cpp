// Motions along a line given by a formula of their position, velocity or acceleration: at one time, and as
// curves.

#include <algorithm>
#include <cmath>

#include "equations.h"
#include "kinematics/kinematics_kinds.h"
#include "kinematics/known_course.h"
#include "numeric/checked.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

namespace kinematics = mechanics::kinematics;

constexpr double kRadians = 1;
// Parts of the size of the numbers: of formulas alone, and of what steps make of them.
constexpr double kPart = 1e-9;
constexpr double kPartOfSteps = 1e-5;
constexpr double kLatest = 5;
constexpr const char* kTooManySteps = "Demasiados pasos en la rutina ODEInt.";
constexpr const char* kCommandFailed = "Error en el comando.";

/// How large the numbers of a course are on the way from its start to a time.
double SizeOf(const std::function<double(double)>& f, double first, double last) {
    constexpr int kSamples = 16;
    double size = 1;
    for (int k = 0; k <= kSamples; ++k)
        size = std::max(size, std::abs(f(first + (last - first) * k / kSamples)));
    return size;
}

struct Sizes {
    double x, v, a;
};
Sizes SizesOf(const KnownCourse& course, double first, double last) {
    return {SizeOf(course.x, first, last), SizeOf(course.v, first, last), SizeOf(course.a, first, last)};
}

std::string WhyNot(const char* name, double found, double known, double part, double size) {
    if (Agree(found, known, part, size))
        return {};
    return std::string(name) + " = " + Digits(found) + ", not " + Digits(known);
}

/// A time at which a course is asked for: mostly after its start, 0 now and then.
double AnyTime(Chance& chance) {
    if (chance.OneIn(20))
        return 0;
    return Rounded(chance.Between(0.05, kLatest), 2).value;
}

Verdict Judge(const KnownCourse& course, double t) {
    const bool is_position = course.typed.way == kinematics::Way::Position;
    try {
        const auto outcome = kinematics::LineAt(course.typed, t, kRadians);
        if (std::holds_alternative<kinematics::TooManySteps>(outcome))
            return Refused(kTooManySteps);
        const auto& state = std::get<kinematics::LineState>(outcome);
        const Sizes sizes = SizesOf(course, is_position ? t : course.typed.start.t, t);
        std::string why = WhyNot("x", state.x, course.x(t), is_position ? kPart : kPartOfSteps, sizes.x);
        if (why.empty())
            why = WhyNot("v", state.v, course.v(t), kPartOfSteps, std::max(sizes.v, sizes.x));
        if (why.empty() && state.a)
            why = WhyNot("a", *state.a, course.a(t), kPartOfSteps, std::max({sizes.a, sizes.v, sizes.x}));
        return why.empty() ? Right() : Wrong(why);
    } catch (const numeric::RuntimeFailure& failure) {
        // A second derivative at t = 0 has no step.
        return is_position && t == 0 ? Refused(kCommandFailed)
                                     : Wrong(std::string("failed: ") + failure.what());
    }
}

Verdict PlayAt(Problem& problem, KnownCourse (*course_of)(Chance&)) {
    const KnownCourse course = course_of(problem.chance);
    const double t = AnyTime(problem.chance);
    problem.Type(course.Told());
    problem.Type("at t = " + Digits(t));
    return Judge(course, t);
}

/// Every value of a curve beside the known one.
std::string WhyNoCurve(const char* name, const std::vector<double>& times, const std::vector<double>& curve,
                       const std::function<double(double)>& known, double part, double size) {
    if (curve.size() != times.size())
        return std::string(name) + " has another length than its times";
    for (std::size_t k = 0; k < times.size(); k += 7)
        if (const std::string why = WhyNot(name, curve[k], known(times[k]), part, size); !why.empty())
            return "at t = " + Digits(times[k]) + " " + why;
    return {};
}

}  // namespace

Verdict PlayGivenPosition(Problem& problem) { return PlayAt(problem, CourseOfPosition); }
Verdict PlayGivenVelocity(Problem& problem) { return PlayAt(problem, CourseOfVelocity); }
Verdict PlayGivenAcceleration(Problem& problem) { return PlayAt(problem, CourseOfAcceleration); }

Verdict PlayLineCurves(Problem& problem) {
    Chance& chance = problem.chance;
    constexpr KnownCourse (*kCourses[])(Chance&) = {CourseOfPosition, CourseOfVelocity, CourseOfAcceleration};
    const KnownCourse course = chance.Of(kCourses)(chance);
    double first = Rounded(chance.Between(0.0, kLatest - 1), 2).value;
    double last = Rounded(chance.Between(first + 0.5, kLatest), 2).value;
    problem.Type(course.Told());
    problem.Type("from " + Digits(first) + " to " + Digits(last));
    const auto outcome =
        chance.OneIn(4) ? kinematics::SampleLine(course.typed, last, first, {true, true, true}, kRadians)
                        : kinematics::SampleLine(course.typed, first, last, {true, true, true}, kRadians);
    if (std::holds_alternative<kinematics::TooManySteps>(outcome))
        return Refused(kTooManySteps);
    const auto& curves = std::get<kinematics::LineCurves>(outcome);
    const bool is_position = course.typed.way == kinematics::Way::Position;
    const Sizes sizes = SizesOf(course, is_position ? first : std::min(first, course.typed.start.t), last);
    const double size = std::max({sizes.x, sizes.v, sizes.a});
    std::string why = WhyNoCurve("x", curves.t, curves.x, course.x, kPartOfSteps, sizes.x);
    if (why.empty())
        why = WhyNoCurve("v", curves.t, curves.v, course.v, kPartOfSteps, std::max(sizes.x, sizes.v));
    if (why.empty())
        why = WhyNoCurve("a", curves.t, curves.a, course.a, kPartOfSteps, size);
    return why.empty() ? Right() : Wrong(why);
}

}  // namespace tavrelo::physics
