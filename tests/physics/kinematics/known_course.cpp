#include "kinematics/known_course.h"

#include <algorithm>
#include <cmath>

#include "equations.h"
#include "text/utf8.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

using mechanics::kinematics::LineStart;
using mechanics::kinematics::Way;
using Function = std::function<double(double)>;

/// Simpson's rule: for the one integral of a smooth function that has no closed form here.
double IntegralOf(const Function& f, double first, double last) {
    constexpr int kPanels = 400;
    const double h = (last - first) / kPanels;
    double sum = f(first) + f(last);
    for (int k = 1; k < kPanels; ++k)
        sum += (k % 2 == 1 ? 4 : 2) * f(first + k * h);
    return sum * h / 3;
}

/// From `start`: the place by integrating the velocity.
Function PlaceFrom(const LineStart& start, const Function& v) {
    return [=](double t) { return start.x + IntegralOf(v, start.t, t); };
}

LineStart AnyStart(Chance& chance) {
    const double t0 = chance.OneIn(2) ? 0 : Rounded(chance.Between(0.0, 2.0), 1).value;
    return {t0, Rounded(chance.Between(-10.0, 10.0), 1).value, Rounded(chance.Between(-10.0, 10.0), 1).value};
}

Typed AnyRate(Chance& chance) { return Rounded(chance.Between(0.1, 2.0), 2); }

/// The integral of a formula from the start on.
Function Since(const Formula& formula, double start) {
    return [=](double t) { return formula.integral(t) - formula.integral(start); };
}

std::string Less(const Typed& number) {
    return number.value < 0 ? "+" + number.text.substr(1) : "-" + number.text;
}

// ---- Velocities.

KnownCourse VelocityOfTime(Chance& chance, const LineStart& start) {
    const Formula f = AnyFormulaOfTime(chance);
    const Function gone = Since(f, start.t);
    return {{Way::Velocity, f.text, start}, [=](double t) { return start.x + gone(t); }, f.value, f.first};
}

/// x' = k (x - c): it comes near c, or leaves it.
KnownCourse VelocityTowardPlace(Chance& chance, const LineStart& start) {
    const Typed k = Rounded(chance.Sign() * chance.Between(0.1, 1.0), 2);
    const Typed c = Rounded(chance.Between(-9.0, 9.0), 1);
    const double rate = k.value, place = c.value;
    const Function x = [=](double t) { return place + (start.x - place) * std::exp(rate * (t - start.t)); };
    return {{Way::Velocity, k.text + "*(x" + Less(c) + ")", start},
            x,
            [=](double t) { return rate * (x(t) - place); },
            [=](double t) { return rate * rate * (x(t) - place); }};
}

/// x' = k f(t) x with a formula of moderate size.
KnownCourse VelocityOfBoth(Chance& chance, const LineStart& start) {
    const Formula f = AnyFormulaOfTime(chance);
    const double size = std::abs(Since(f, start.t)(5)) + std::abs(f.value(5)) + std::abs(f.value(2.5)) + 1;
    const Typed k = Significant(2 / size, 3);
    const double scale = k.value;
    const Function gone = Since(f, start.t);
    const Function x = [=](double t) { return start.x * std::exp(scale * gone(t)); };
    const Function v = [=](double t) { return scale * f.value(t) * x(t); };
    return {{Way::Velocity, k.text + "*(" + f.text + ")*x", start}, x, v, [=](double t) {
                return scale * (f.first(t) * x(t) + f.value(t) * v(t));
            }};
}

// ---- Accelerations.

KnownCourse AccelerationOfTime(Chance& chance, const LineStart& start) {
    const Formula f = AnyFormulaOfTime(chance);
    const Function gone = Since(f, start.t);
    const Function v = [=](double t) { return start.v + gone(t); };
    return {{Way::Acceleration, f.text, start}, PlaceFrom(start, v), v, f.value};
}

/// x'' = -w2 x: a spring.
KnownCourse Spring(Chance& chance, const LineStart& start) {
    const Typed square = Rounded(chance.Between(0.2, 9.0), 2);
    const double w = std::sqrt(square.value);
    const Function x = [=](double t) {
        return start.x * std::cos(w * (t - start.t)) + start.v / w * std::sin(w * (t - start.t));
    };
    const Function v = [=](double t) {
        return -start.x * w * std::sin(w * (t - start.t)) + start.v * std::cos(w * (t - start.t));
    };
    return {
        {Way::Acceleration, "-" + square.text + "*x", start}, x, v, [=](double t) { return -w * w * x(t); }};
}

/// x'' = -w2 x - 2 b v with b below w: a spring in oil.
KnownCourse DampedSpring(Chance& chance, const LineStart& start) {
    const Typed square = Rounded(chance.Between(1.0, 9.0), 2);
    const Typed twice = Rounded(chance.Between(0.1, 1.5), 2);
    const double b = twice.value / 2, w = std::sqrt(square.value - b * b);
    const double sine = (start.v + b * start.x) / w;
    const Function x = [=](double t) {
        const double d = t - start.t;
        return std::exp(-b * d) * (start.x * std::cos(w * d) + sine * std::sin(w * d));
    };
    const Function v = [=](double t) {
        const double d = t - start.t;
        return -b * x(t) + std::exp(-b * d) * w * (sine * std::cos(w * d) - start.x * std::sin(w * d));
    };
    return {{Way::Acceleration, "-" + square.text + "*x-" + twice.text + "*v", start}, x, v, [=](double t) {
                return -square.value * x(t) - twice.value * v(t);
            }};
}

/// x'' = g - k v: the fall in a liquid.
KnownCourse LinearDrag(Chance& chance, const LineStart& start) {
    const Typed g = Rounded(chance.Between(-9.8, 9.8), 1);
    const Typed k = AnyRate(chance);
    const double limit = g.value / k.value, rate = k.value;
    const Function v = [=](double t) { return limit + (start.v - limit) * std::exp(-rate * (t - start.t)); };
    const Function x = [=](double t) {
        const double d = t - start.t;
        return start.x + limit * d + (start.v - limit) / rate * (1 - std::exp(-rate * d));
    };
    return {{Way::Acceleration, g.text + "-" + k.text + "*v", start}, x, v, [=](double t) {
                return g.value - rate * v(t);
            }};
}

/// x'' = g - k v^2 from rest: the fall in air.
KnownCourse SquareDrag(Chance& chance, LineStart start) {
    start.v = 0;
    const Typed g = Rounded(chance.Between(1.0, 9.8), 1);
    const Typed k = Rounded(chance.Between(0.01, 0.5), 3);
    const double w = std::sqrt(g.value * k.value), limit = std::sqrt(g.value / k.value);
    const Function v = [=](double t) { return limit * std::tanh(w * (t - start.t)); };
    const Function x = [=](double t) { return start.x + std::log(std::cosh(w * (t - start.t))) / k.value; };
    return {{Way::Acceleration, g.text + "-" + k.text + "*v^2", start}, x, v, [=](double t) {
                return g.value - k.value * v(t) * v(t);
            }};
}

/// x'' = k f(t) v.
KnownCourse AccelerationOfBoth(Chance& chance, const LineStart& start) {
    LineStart of_speed = start;
    of_speed.x = start.v;
    const KnownCourse speed = VelocityOfBoth(chance, of_speed);
    std::string formula = speed.typed.formula;
    formula.back() = 'v';
    return {{Way::Acceleration, formula, start}, PlaceFrom(start, speed.x), speed.x, speed.v};
}

}  // namespace

std::string KnownCourse::Told() const {
    return typed.formula + " from t = " + Digits(typed.start.t) + ", x = " + Digits(typed.start.x) +
           ", v = " + Digits(typed.start.v);
}

Formula AnyFormulaOfTime(Chance& chance) {
    Formula formula = AnyFormula(chance);
    formula.text = text::ReplaceAll(formula.text, "x", "t");
    return formula;
}

KnownCourse CourseOfPosition(Chance& chance) {
    const Formula f = AnyFormulaOfTime(chance);
    return {{Way::Position, f.text, {}}, f.value, f.first, f.second};
}

KnownCourse CourseOfVelocity(Chance& chance) {
    const LineStart start = AnyStart(chance);
    constexpr KnownCourse (*kCourses[])(Chance&, const LineStart&) = {VelocityOfTime, VelocityTowardPlace,
                                                                      VelocityOfBoth};
    return chance.Of(kCourses)(chance, start);
}

KnownCourse CourseOfAcceleration(Chance& chance) {
    const LineStart start = AnyStart(chance);
    switch (chance.Below(6)) {
        case 0:
            return AccelerationOfTime(chance, start);
        case 1:
            return Spring(chance, start);
        case 2:
            return DampedSpring(chance, start);
        case 3:
            return LinearDrag(chance, start);
        case 4:
            return SquareDrag(chance, start);
        default:
            return AccelerationOfBoth(chance, start);
    }
}

}  // namespace tavrelo::physics
