#include "numeric/formulas.h"

#include <cmath>
#include <stdexcept>

#include "expr/expression.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr double kRadians = 1;

Formula Power(const Typed& a, int n) {
    const double c = a.value;
    return {a.text + "*x^" + std::to_string(n), [=](double x) { return c * std::pow(x, n); },
            [=](double x) { return n == 0 ? 0 : c * n * std::pow(x, n - 1); },
            [=](double x) { return n < 2 ? 0 : c * n * (n - 1) * std::pow(x, n - 2); },
            [=](double x) { return c * std::pow(x, n + 1) / (n + 1); }};
}

Formula Sine(const Typed& a, const Typed& b) {
    const double c = a.value, w = b.value;
    return {a.text + "*SEN(" + b.text + "*x)", [=](double x) { return c * std::sin(w * x); },
            [=](double x) { return c * w * std::cos(w * x); },
            [=](double x) { return -c * w * w * std::sin(w * x); },
            [=](double x) { return -c / w * std::cos(w * x); }};
}

Formula Cosine(const Typed& a, const Typed& b) {
    const double c = a.value, w = b.value;
    return {a.text + "*cos(" + b.text + "*x)", [=](double x) { return c * std::cos(w * x); },
            [=](double x) { return -c * w * std::sin(w * x); },
            [=](double x) { return -c * w * w * std::cos(w * x); },
            [=](double x) { return c / w * std::sin(w * x); }};
}

Formula Exponential(const Typed& a, const Typed& b) {
    const double c = a.value, k = b.value;
    return {a.text + "*EXP(" + b.text + "*x)", [=](double x) { return c * std::exp(k * x); },
            [=](double x) { return c * k * std::exp(k * x); },
            [=](double x) { return c * k * k * std::exp(k * x); },
            [=](double x) { return c / k * std::exp(k * x); }};
}

Formula Root(const Typed& a, const Typed& b) {
    const double c = a.value, s = b.value;
    return {a.text + "*R(x + " + b.text + ")", [=](double x) { return c * std::sqrt(x + s); },
            [=](double x) { return c / (2 * std::sqrt(x + s)); },
            [=](double x) { return -c / (4 * std::pow(x + s, 1.5)); },
            [=](double x) { return c * 2.0 / 3 * std::pow(x + s, 1.5); }};
}

Formula Fraction(const Typed& a, const Typed& b) {
    const double c = a.value, s = b.value;
    return {a.text + "/(x + " + b.text + ")", [=](double x) { return c / (x + s); },
            [=](double x) { return -c / ((x + s) * (x + s)); },
            [=](double x) { return 2 * c / ((x + s) * (x + s) * (x + s)); },
            [=](double x) { return c * std::log(x + s); }};
}

Formula AnyTerm(Chance& chance) {
    const Typed a = Rounded(chance.Sign() * chance.Between(0.1, 9.0), 2);
    const Typed rate = Rounded(chance.Between(0.2, 2.0), 2), shift = Rounded(chance.Between(2.0, 6.0), 2);
    switch (chance.Below(7)) {
        case 0:
            return Sine(a, rate);
        case 1:
            return Cosine(a, rate);
        case 2:
            return Exponential(a, Rounded(chance.Sign() * chance.Between(0.1, 0.8), 2));
        case 3:
            return Root(a, shift);
        case 4:
            return Fraction(a, shift);
        default:
            return Power(a, chance.Between(0, 4));
    }
}

Formula SumOf(const Formula& a, const Formula& b) {
    const bool is_negative = b.text.front() == '-';
    return {a.text + (is_negative ? " - " + b.text.substr(1) : " + " + b.text),
            [=](double x) { return a.value(x) + b.value(x); },
            [=](double x) { return a.first(x) + b.first(x); },
            [=](double x) { return a.second(x) + b.second(x); },
            [=](double x) { return a.integral(x) + b.integral(x); }};
}

}  // namespace

Formula AnyFormula(Chance& chance) {
    Formula formula = AnyTerm(chance);
    for (std::size_t k = chance.Below(4); k > 0; --k)
        formula = SumOf(formula, AnyTerm(chance));
    return formula;
}

struct ReadFormula::Reader {
    expr::CExpression expression{kRadians};
};

ReadFormula::ReadFormula(const std::string& text) : m_reader(std::make_unique<Reader>()) {
    m_reader->expression.SetExpression(text);
    if (m_reader->expression.ErrorCode() != 0)
        throw std::runtime_error(m_reader->expression.ErrorDescription());
}
ReadFormula::~ReadFormula() = default;

double ReadFormula::At(double x) { return m_reader->expression.EvaluateNumber(std::array{x}); }

}  // namespace tavrelo::physics
