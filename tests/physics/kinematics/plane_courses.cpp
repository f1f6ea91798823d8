// Motions in the plane given by x(t) and y(t) or by r(t) and theta(t): at one time, and as trajectories.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "equations.h"
#include "kinematics/kinematics_kinds.h"
#include "kinematics/known_course.h"
#include "mechanics/kinematics/plane_motion.h"
#include "numeric/checked.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

namespace kinematics = mechanics::kinematics;
using kinematics::Way;
using Pair = kinematics::PlaneState::Pair;

constexpr double kPart = 1e-9;
constexpr double kPartOfDerivative = 1e-5;
constexpr double kLatest = 5;

/// A motion in the plane with the unit of its angles.
struct PlaneCourse {
    Formula first, second;
    Way way = Way::Plane;
    double radians_of_unit = 1;

    kinematics::PlaneMotion Typed() const { return {way, first.text, second.text}; }
};

/// In degrees the functions of the formulas take degrees too: then there are none.
bool HasTrigonometry(const Formula& formula) {
    return formula.text.find("SEN") != std::string::npos || formula.text.find("cos") != std::string::npos;
}

Formula FormulaIn(Chance& chance, bool is_degrees) {
    Formula formula = AnyFormulaOfTime(chance);
    while (is_degrees && HasTrigonometry(formula))
        formula = AnyFormulaOfTime(chance);
    return formula;
}

PlaneCourse AnyCourse(Problem& problem, Way way) {
    Chance& chance = problem.chance;
    const bool is_degrees = chance.OneIn(2);
    PlaneCourse course = {FormulaIn(chance, is_degrees), FormulaIn(chance, is_degrees), way,
                          is_degrees ? std::numbers::pi / 180 : 1};
    problem.Type(course.first.text);
    problem.Type(course.second.text);
    problem.Type(is_degrees ? "degrees" : "radians");
    return course;
}

struct KnownState {
    Pair position, velocity, acceleration;
};

/// In polar coordinates from the cartesian ones: the velocity and the acceleration of x = r cos, y = r sin,
/// turned into the direction of the radius.
KnownState PolarAt(const PlaneCourse& course, double t) {
    const double k = course.radians_of_unit;
    const double r = course.first.value(t), angle = k * course.second.value(t);
    const double c = std::cos(angle), s = std::sin(angle);
    const double r1 = course.first.first(t), r2 = course.first.second(t);
    const double w = k * course.second.first(t), w1 = k * course.second.second(t);
    const double vx = r1 * c - r * s * w, vy = r1 * s + r * c * w;
    const double ax = r2 * c - 2 * r1 * s * w - r * c * w * w - r * s * w1;
    const double ay = r2 * s + 2 * r1 * c * w - r * s * w * w + r * c * w1;
    return {{r, course.second.value(t)},
            {vx * c + vy * s, -vx * s + vy * c},
            {ax * c + ay * s, -ax * s + ay * c}};
}

KnownState StateAt(const PlaneCourse& course, double t) {
    if (course.way == Way::Polar)
        return PolarAt(course, t);
    return {{course.first.value(t), course.second.value(t)},
            {course.first.first(t), course.second.first(t)},
            {course.first.second(t), course.second.second(t)}};
}

std::string WhyNot(const char* name, const Pair& found, const Pair& known, double part, double size) {
    if (Agree(found.first, known.first, part, size) && Agree(found.second, known.second, part, size))
        return {};
    return std::string(name) + " is (" + Digits(found.first) + ", " + Digits(found.second) + "), not (" +
           Digits(known.first) + ", " + Digits(known.second) + ")";
}

/// How large the numbers are from which a state is reckoned.
double SizeOf(const PlaneCourse& course, double t) {
    double size = 1;
    for (const Formula* formula : {&course.first, &course.second})
        size = std::max(
            {size, std::abs(formula->value(t)), std::abs(formula->first(t)), std::abs(formula->second(t))});
    const double w = course.radians_of_unit * course.second.first(t);
    return course.way == Way::Polar ? size * (1 + std::abs(w) + w * w) : size;
}

Verdict PlayAt(Problem& problem, Way way) {
    const PlaneCourse course = AnyCourse(problem, way);
    Chance& chance = problem.chance;
    const double t = chance.OneIn(20) ? 0 : Rounded(chance.Between(0.05, kLatest), 2).value;
    problem.Type("at t = " + Digits(t));
    kinematics::PlaneState state;
    try {
        state = kinematics::PlaneAt(course.Typed(), t, course.radians_of_unit);
    } catch (const numeric::RuntimeFailure& failure) {
        return t == 0 ? Refused("Error en el comando.") : Wrong(std::string("failed: ") + failure.what());
    }
    const KnownState known = StateAt(course, t);
    const double size = SizeOf(course, t);
    std::string why = WhyNot("the place", state.position, known.position, kPart, size);
    if (why.empty())
        why = WhyNot("the velocity", state.velocity, known.velocity, kPartOfDerivative, size);
    if (why.empty())
        why = WhyNot("the acceleration", state.acceleration, known.acceleration, kPartOfDerivative, size);
    return why.empty() ? Right() : Wrong(why);
}

}  // namespace

Verdict PlayPlaneMotion(Problem& problem) { return PlayAt(problem, Way::Plane); }
Verdict PlayPolarMotion(Problem& problem) { return PlayAt(problem, Way::Polar); }

Verdict PlayTrajectory(Problem& problem) {
    Chance& chance = problem.chance;
    const PlaneCourse course = AnyCourse(problem, chance.OneIn(2) ? Way::Plane : Way::Polar);
    const double first = Rounded(chance.Between(0.0, kLatest - 1), 2).value;
    const double last = Rounded(chance.Between(first + 0.5, kLatest), 2).value;
    problem.Type("from " + Digits(first) + " to " + Digits(last));
    const auto path = kinematics::SamplePlane(course.Typed(), first, last, course.radians_of_unit);
    const std::size_t count = path.x.size();
    if (count < 2 || path.y.size() != count)
        return Wrong("the trajectory has " + std::to_string(count) + " places");
    for (std::size_t k = 0; k < count; ++k) {
        const double t = first + (last - first) * static_cast<double>(k) / static_cast<double>(count - 1);
        const double u = course.first.value(t), w = course.second.value(t);
        const double angle = course.radians_of_unit * w;
        const bool is_polar = course.way == Way::Polar;
        const Pair known = {is_polar ? u * std::cos(angle) : u, is_polar ? u * std::sin(angle) : w};
        if (const std::string why =
                WhyNot("the place", {path.x[k], path.y[k]}, known, kPart, SizeOf(course, t));
            !why.empty())
            return Wrong("at t = " + Digits(t) + " " + why);
    }
    return Right();
}

}  // namespace tavrelo::physics
