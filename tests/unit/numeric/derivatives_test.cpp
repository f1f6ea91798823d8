#include "numeric/derivatives.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

TEST(Derivative, KnownDerivativesWithinTheirEstimate) {
    struct Row {
        double (*f)(double);
        double x, h, expected;
    };
    const Row rows[] = {
        {[](double x) { return std::sin(x); }, 1, 0.5, std::cos(1)},
        {[](double x) { return std::exp(x); }, 2, 0.5, std::exp(2)},
        {[](double x) { return std::log(x); }, 3, 0.1, 1.0 / 3},
        {[](double x) { return x * x * x / 3; }, 2, 0.1, 4},
        {[](double x) { return 1 / x; }, -2, 0.1, -0.25},
        {[](double x) { return std::sqrt(x); }, 4, 0.5, 0.25},
        {[](double) { return 7.0; }, 4, 0.5, 0},
    };
    for (const Row& row : rows) {
        for (const double h : {row.h, -row.h}) {
            const DerivativeEstimate found = Derivative(row.f, row.x, h);
            EXPECT_NEAR(found.value, row.expected, 1e-10) << row.expected;
            EXPECT_GE(found.error, 0);
            EXPECT_LT(found.error, 1e-8) << row.expected;
        }
    }
}

TEST(Derivative, AnOddFunctionOfHighOrderIsExtrapolated) {
    // (f(1 + h) - f(1 - h)) / 2h of x^5 is 5 + 10 h^2 + h^4: with h = 0.5 that is 7.5625, the answer is 5.
    const DerivativeEstimate found = Derivative([](double x) { return std::pow(x, 5); }, 1, 0.5);
    EXPECT_NEAR(found.value, 5, 1e-12);
}

// Numbers of columns by the textbook tableau with these constants, worked out separately.
TEST(Derivative, StopsWhereTheExtrapolationGetsWorse) {
    int calls = 0;
    const auto columns = [&calls](double (*f)(double), double x, double h) {
        calls = 0;
        Derivative([&](double at) { return ++calls, f(at); }, x, h);
        return calls / 2;
    };
    EXPECT_EQ(columns([](double x) { return std::tan(x); }, 1, 0.5), 3);
    EXPECT_EQ(columns([](double x) { return std::sqrt(std::abs(x)); }, 0.3, 0.5), 4);
    EXPECT_EQ(columns([](double x) { return std::exp(x); }, 2, 4), 10);  // no more are made
}

TEST(Derivative, AtAKinkItIsTheMeanSlope) {
    EXPECT_EQ(Derivative([](double x) { return std::abs(x); }, 0, 0.5).value, 0);
}

TEST(Derivative, FailuresPass) {
    EXPECT_EQ(FailureOf([] { Derivative([](double x) { return x; }, 1, 0); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { Derivative([](double x) { return CheckedLog(x); }, 0.3, 0.5); }),
              FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { Derivative([](double x) { return x > 0 ? 1e308 : -1e308; }, 0, 0.1); }),
              FailureCode::Overflow);
}

TEST(SecondDeriv, OfPowers) {
    // Exact up to x^5; of x^6 at 0 the five points give -8 h^4.
    EXPECT_NEAR(SecondDeriv([](double x) { return std::pow(x, 4); }, 2, 0.1), 48, 1e-9);
    EXPECT_NEAR(SecondDeriv([](double x) { return std::pow(x, 5); }, 1, -0.1), 20, 1e-9);
    EXPECT_NEAR(SecondDeriv([](double x) { return std::pow(x, 6); }, 0, 0.5), -0.5, 1e-14);
    EXPECT_NEAR(SecondDeriv([](double x) { return std::sin(x); }, 1, 0.01), -std::sin(1), 1e-9);
}

TEST(SecondDeriv, AStepOfZeroFails) {
    EXPECT_EQ(FailureOf([] { SecondDeriv([](double x) { return x; }, 1, 0); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { SecondDeriv([](double x) { return x; }, 1, 1e-200); }),
              FailureCode::DivisionByZero);
}

}  // namespace
}  // namespace tavrelo::numeric
