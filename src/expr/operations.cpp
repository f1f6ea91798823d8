#include "expr/operations.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "expr/kernels.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::expr {

namespace {

using numeric::CheckedDivide;
using numeric::Finite;
using numeric::RoundToInteger;

constexpr double kRightAngleDegrees = 90.0;
constexpr double kHalfTurnDegrees = 180.0;

double Reciprocal(double x) { return CheckedDivide(1.0, x); }

double Sine(double angle, double factor) { return Finite(SineOf(angle, factor)); }
double Cosine(double angle, double factor) { return Finite(CosineOf(angle, factor)); }
double Tangent(double angle, double factor) { return Finite(TangentOf(angle, factor)); }
double ArcTangent(double x) { return Finite(ArcTangentOf(x)); }

double CheckedPower(double base, double exponent) {
    if (base == 0.0 && exponent < 0.0) {
        numeric::ThrowDivisionByZero();
    }
    return Finite(Power(base, exponent));
}

double SignOf(double x) { return x > 0.0 ? 1.0 : x < 0.0 ? -1.0 : 0.0; }

/// An integer divisor, which fails when it is 0.
std::int64_t IntegerDivisor(double x) {
    const int divisor = RoundToInteger(x);
    if (divisor == 0) {
        numeric::ThrowDivisionByZero();
    }
    return divisor;
}

double IntegerQuotient(double a, double b) {
    const std::int64_t dividend = RoundToInteger(a);
    const std::int64_t quotient = dividend / IntegerDivisor(b);
    return RoundToInteger(static_cast<double>(quotient));
}

double Remainder(double a, double b) {
    const std::int64_t dividend = RoundToInteger(a);
    return static_cast<double>(dividend % IntegerDivisor(b));
}

/// The missing leg of a right triangle, whichever of the two is the hypotenuse.
double Leg(double a, double b) {
    const double first = Finite(a * a);
    const double second = Finite(b * b);
    return numeric::CheckedSqrt(a > b ? first - second : second - first);
}

double StepPower(double n, double x, double a) {
    return IsAtLeast(x, a) ? CheckedPower(numeric::CheckedSubtract(x, a), n) : 0.0;
}

double IsWithin(double x, double low, double high) {
    return IsAtLeast(x, low) && IsAtLeast(high, x) ? 1.0 : 0.0;
}

struct UnaryRow {
    Token token;
    UnaryFunction function;
};

constexpr UnaryRow kUnary[] = {
    {Token::UnaryMinus, [](double x, double) { return -x; }},
    {Token::Not, [](double x, double) { return static_cast<double>(~RoundToInteger(x)); }},
    {Token::Abs, [](double x, double) { return std::abs(x); }},
    {Token::Gar, [](double x, double) { return Finite(x * numeric::kRadiansPerDegree); }},
    {Token::Rag, [](double x, double) { return Finite(x * numeric::kDegreesPerRadian); }},
    {Token::Ent, [](double x, double) { return std::floor(x); }},
    {Token::Fix, [](double x, double) { return std::trunc(x); }},
    {Token::Sgn, [](double x, double) { return SignOf(x); }},
    {Token::R, [](double x, double) { return numeric::CheckedSqrt(x); }},
    {Token::R3, [](double x, double) { return CheckedPower(x, 1.0 / 3.0); }},
    {Token::Ln, [](double x, double) { return numeric::CheckedLog(x); }},
    {Token::Log10, [](double x, double) { return numeric::CheckedLog(x) / std::log(10.0); }},
    {Token::Exp, [](double x, double) { return numeric::CheckedExp(x); }},
    {Token::Sen, Sine},
    {Token::Cos, Cosine},
    {Token::Tan, Tangent},
    {Token::Cot, [](double x, double factor) { return Reciprocal(Tangent(x, factor)); }},
    {Token::Csc, [](double x, double factor) { return Reciprocal(Sine(x, factor)); }},
    {Token::Sec, [](double x, double factor) { return Reciprocal(Cosine(x, factor)); }},
    {Token::Atan, [](double x, double) { return ArcTangent(x); }},
    {Token::Asen, [](double x, double) { return numeric::ArcSinD(x); }},
    {Token::Acos, [](double x, double) { return numeric::ArcCosD(x); }},
    {Token::Acot, [](double x, double) { return kRightAngleDegrees - ArcTangent(x); }},
    {Token::Acsc, [](double x, double) { return numeric::ArcSinD(Reciprocal(x)); }},
    {Token::Asec, [](double x, double) { return numeric::ArcCosD(Reciprocal(x)); }},
    {Token::Senh, [](double x, double) { return numeric::SinH(x); }},
    {Token::Cosh, [](double x, double) { return numeric::CosH(x); }},
};

struct BinaryRow {
    Token token;
    BinaryFunction function;
};

constexpr BinaryRow kBinary[] = {
    {Token::Power, [](double a, double b, double) { return CheckedPower(a, b); }},
    {Token::Product, [](double a, double b, double) { return Finite(a * b); }},
    {Token::Quotient, [](double a, double b, double) { return CheckedDivide(a, b); }},
    {Token::IntegerQuotient, [](double a, double b, double) { return IntegerQuotient(a, b); }},
    {Token::Sum, [](double a, double b, double) { return Finite(a + b); }},
    {Token::Difference, [](double a, double b, double) { return Finite(a - b); }},
    {Token::Mod, [](double a, double b, double) { return Remainder(a, b); }},
    {Token::And,
     [](double a, double b, double) { return static_cast<double>(RoundToInteger(a) & RoundToInteger(b)); }},
    {Token::Or,
     [](double a, double b, double) { return static_cast<double>(RoundToInteger(a) | RoundToInteger(b)); }},
    {Token::Xor,
     [](double a, double b, double) { return static_cast<double>(RoundToInteger(a) ^ RoundToInteger(b)); }},
    {Token::Sese,
     [](double a, double b, double factor) { return CheckedDivide(Sine(a, factor), Sine(b, factor)); }},
    {Token::Seco,
     [](double a, double b, double factor) { return CheckedDivide(Sine(a, factor), Cosine(b, factor)); }},
    {Token::Cose,
     [](double a, double b, double factor) { return CheckedDivide(Cosine(a, factor), Sine(b, factor)); }},
    {Token::Coco,
     [](double a, double b, double factor) { return CheckedDivide(Cosine(a, factor), Cosine(b, factor)); }},
    {Token::Atan2, [](double x, double y, double) { return numeric::AngleOf(x, y); }},
    {Token::Coc, [](double a, double b, double) { return CheckedDivide(a, b); }},
    {Token::Hipo, [](double a, double b, double) { return numeric::Hypot(a, b); }},
    {Token::Cate, [](double a, double b, double) { return Leg(a, b); }},
};

struct RelationRow {
    Token token;
    Relation holds;
};

constexpr RelationRow kRelations[] = {
    {Token::Equal, [](int order) { return order == 0; }},
    {Token::NotEqual, [](int order) { return order != 0; }},
    {Token::LessOrEqual, [](int order) { return order <= 0; }},
    {Token::Less, [](int order) { return order < 0; }},
    {Token::GreaterOrEqual, [](int order) { return order >= 0; }},
    {Token::Greater, [](int order) { return order > 0; }},
};

constexpr auto kOperations = [] {
    std::array<Operation, kTokenCount> operations{};
    const auto row = [&](Token token) -> Operation& { return operations[static_cast<std::size_t>(token)]; };
    row(Token::Operand).action = Action::Load;
    row(Token::Pi) = {.action = Action::Constant, .constant = numeric::kPi};
    row(Token::Rads) = {.action = Action::Constant, .constant = numeric::kPi / kHalfTurnDegrees};
    for (const UnaryRow& unary : kUnary) {
        row(unary.token) = {.action = Action::Unary, .unary = unary.function};
    }
    for (const BinaryRow& binary : kBinary) {
        row(binary.token) = {.action = Action::Binary, .binary = binary.function};
    }
    for (const RelationRow& relation : kRelations) {
        row(relation.token) = {.action = Action::Compare, .holds = relation.holds};
    }
    row(Token::Stp) = {.action = Action::Ternary, .ternary = StepPower};
    row(Token::Bar) = {.action = Action::Ternary, .ternary = IsWithin};
    row(Token::Min).action = Action::Smaller;
    row(Token::Max).action = Action::Larger;
    row(Token::Iif).action = Action::Choose;
    row(Token::Stp1).action = Action::Step;
    return operations;
}();

}  // namespace

/// Rounding keeps the order, so only numbers that are almost equal need it.
bool IsAtLeast(double a, double b) {
    constexpr int kDecimals = 12;
    constexpr double kFarApart = 1e-11;
    constexpr double kRelativelyFarApart = 1e-13;
    if (a >= b) {
        return true;
    }
    if (b - a > kFarApart + kRelativelyFarApart * std::max(std::abs(a), std::abs(b))) {
        return false;
    }
    return text::RoundTo(a, kDecimals) >= text::RoundTo(b, kDecimals);
}

const Operation& OperationOf(Token token) { return kOperations[static_cast<std::size_t>(token)]; }

}  // namespace tavrelo::expr
