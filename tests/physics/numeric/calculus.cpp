#include <algorithm>
#include <cmath>

#include "equations.h"
#include "numeric/derivatives.h"
#include "numeric/formulas.h"
#include "numeric/numeric_kinds.h"
#include "numeric/ode.h"
#include "numeric/quadrature.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

// Parts of the size of what is reckoned, as the routines promise them with some room.
constexpr double kSimpsonPart = 1e-5;
constexpr double kOdePart = 1e-3;
constexpr double kDerivativePart = 1e-7;
constexpr double kSecondDerivativePart = 1e-5;
constexpr double kFirstStep = 0.1;
constexpr double kSecondStep = 0.01;
constexpr int kSamples = 64;
constexpr double kFirst = 0, kLast = 5;  // where the formulas have no pole

struct Interval {
    double first, last;
};

Interval TypedInterval(Chance& chance) {
    const double first = Rounded(chance.Between(kFirst, kLast - 1), 2).value;
    return {first, Rounded(chance.Between(first + 0.5, kLast), 2).value};
}

// The largest value on an interval.
double SizeOf(const std::function<double(double)>& f, double first, double last) {
    double largest = 0;
    for (int k = 0; k <= kSamples; ++k)
        largest = std::max(largest, std::abs(f(first + (last - first) * k / kSamples)));
    return largest;
}

Verdict Judged(const char* what, double found, double expected, double part, double size) {
    if (Agree(found, expected, part, size))
        return Right();
    return Wrong(std::string(what) + " is " + Digits(found) + ", not " + Digits(expected));
}

}  // namespace

Verdict PlayIntegral(Problem& problem) {
    Chance& chance = problem.chance;
    const Formula formula = AnyFormula(chance);
    auto [first, last] = TypedInterval(chance);
    const double expected = formula.integral(last) - formula.integral(first);
    const double size = SizeOf(formula.value, first, last) * (last - first);
    if (chance.OneIn(4))  // limits the other way round give the same
        std::swap(first, last);
    problem.Type(formula.text + " from " + Digits(first) + " to " + Digits(last));
    ReadFormula read(formula.text);
    const double simpson = numeric::Integrate([&](double x) { return read.At(x); }, first, last);
    const Verdict verdict = Judged("the integral", simpson, expected, kSimpsonPart, size);
    if (verdict.kind != Verdict::Kind::Right)
        return verdict;
    const auto stepped =
        numeric::IntegrateOde([&](std::span<const double> at) { return read.At(at[0]); }, first, last);
    if (stepped.outcome != numeric::OdeOutcome::Done)
        return Refused(numeric::kTooManySteps);
    return Judged("the integral by steps", stepped.value, expected, kOdePart, size);
}

Verdict PlayDerivatives(Problem& problem) {
    Chance& chance = problem.chance;
    const Formula formula = AnyFormula(chance);
    const double x = Rounded(chance.Between(kFirst, kLast), 2).value;
    problem.Type(formula.text + " at " + Digits(x));
    ReadFormula read(formula.text);
    const auto f = [&](double at) { return read.At(at); };
    const double size = SizeOf(formula.value, x - kFirstStep, x + kFirstStep);
    const Verdict verdict = Judged("the derivative", numeric::Derivative(f, x, kFirstStep).value,
                                   formula.first(x), kDerivativePart, size);
    if (verdict.kind != Verdict::Kind::Right)
        return verdict;
    return Judged("the second derivative", numeric::SecondDeriv(f, x, kSecondStep), formula.second(x),
                  kSecondDerivativePart, size);
}

namespace {

// y' = a - b y from y0: y = a/b + (y0 - a/b) e^(-bt).
struct Relaxation {
    double a, b, y0;

    double Slope(double y) const { return a - b * y; }
    double At(double t) const { return a / b + (y0 - a / b) * std::exp(-b * t); }
};

// y'' = g - 2 z y' - w^2 y, an oscillation about g/w^2 with w > z.
struct Oscillation {
    double g, z, w, y0, v0;

    double Slope(double y, double v) const { return g - 2 * z * v - w * w * y; }
    numeric::OdeState At(double t) const {
        const double own = std::sqrt(w * w - z * z), middle = g / (w * w);
        const double a = y0 - middle, b = (v0 + z * a) / own, fade = std::exp(-z * t);
        const double c = std::cos(own * t), s = std::sin(own * t);
        return {middle + fade * (a * c + b * s), fade * ((b * own - z * a) * c - (a * own + z * b) * s)};
    }
    double Size() const { return std::abs(g) / (w * w) + std::abs(y0) + std::abs(v0) / w; }
};

constexpr double kAccuracy = 1e-8;
constexpr int kSteps = 300;
constexpr double kStepsPart = 1e-4;

// The end by steps of changing length and by equal steps.
Verdict JudgedMotion(numeric::OdeFunction f, int order, numeric::OdeState start, double end,
                     const numeric::OdeState& expected, double size, double speed) {
    const numeric::OdeTable table = numeric::RKDumb(f, order, start, 0, end, kSteps);
    if (numeric::ODEInt(f, order, start, 0, end, kAccuracy, kFirstStep, numeric::kOdeLeastStep) !=
        numeric::OdeOutcome::Done)
        return Refused(numeric::kTooManySteps);
    const double sizes[] = {size, speed};
    for (std::size_t k = 0; k < static_cast<std::size_t>(order); ++k) {
        if (!Agree(start[k], expected[k], kStepsPart, sizes[k]))
            return Wrong("the end is " + Digits(start[k]) + ", not " + Digits(expected[k]));
        if (!Agree(table.y[k].back(), expected[k], kStepsPart, sizes[k]))
            return Wrong("the end by equal steps is " + Digits(table.y[k].back()) + ", not " +
                         Digits(expected[k]));
    }
    return Right();
}

}  // namespace

Verdict PlayDifferentialEquation(Problem& problem) {
    Chance& chance = problem.chance;
    const double end = Rounded(chance.Between(0.5, 8.0), 2).value;
    const double y0 = Rounded(chance.Between(-20.0, 20.0), 1).value;
    if (chance.OneIn(2)) {
        const Relaxation r = {Rounded(chance.Between(-20.0, 20.0), 2).value,
                              Rounded(chance.Between(0.05, 2.0), 2).value, y0};
        problem.Type("y' = " + Digits(r.a) + " - " + Digits(r.b) + " y, y(0) = " + Digits(y0) + " to " +
                     Digits(end));
        const double size = std::abs(r.a) / r.b + std::abs(y0);
        return JudgedMotion([&](std::span<const double> at) { return r.Slope(at[1]); }, 1, {y0, 0}, end,
                            {r.At(end), 0}, size, 0);
    }
    const double w = Rounded(chance.Between(0.3, 4.0), 2).value;
    const Oscillation o = {Rounded(chance.Between(-10.0, 10.0), 2).value,
                           Rounded(chance.Between(0.0, 0.9) * w, 2).value, w, y0,
                           Rounded(chance.Between(-20.0, 20.0), 1).value};
    problem.Type("y'' = " + Digits(o.g) + " - 2*" + Digits(o.z) + " y' - " + Digits(w) +
                 "^2 y, y(0) = " + Digits(y0) + ", y'(0) = " + Digits(o.v0) + " to " + Digits(end));
    return JudgedMotion([&](std::span<const double> at) { return o.Slope(at[1], at[2]); }, 2, {y0, o.v0}, end,
                        o.At(end), o.Size(), o.Size() * w);
}

}  // namespace tavrelo::physics
