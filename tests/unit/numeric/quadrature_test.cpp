#include "numeric/quadrature.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "../failure_code.h"
#include "numeric/function_ref.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

TEST(Integrate, KnownIntegrals) {
    const auto cubic = [](double x) { return x * x * x - 2 * x; };
    EXPECT_NEAR(Integrate(cubic, -1, 3), 12, 1e-12);  // Simpson is exact for cubics: 20.25 - 9 - 0.25 + 1
    EXPECT_NEAR(Integrate([](double x) { return std::exp(x); }, 0, 1), std::numbers::e - 1, 2e-6);
    EXPECT_NEAR(Integrate([](double x) { return std::sin(x); }, 0, 2), 1 - std::cos(2), 2e-6);
    EXPECT_NEAR(Integrate([](double x) { return 1 / x; }, 1, 10), std::log(10), 3e-6);
}

TEST(Integrate, ExchangedLimitsKeepTheSign) {
    const auto identity = [](double x) { return x; };
    EXPECT_NEAR(Integrate(identity, 1, 5), 12, 1e-12);
    EXPECT_NEAR(Integrate(identity, 5, 1), 12, 1e-12);
    EXPECT_EQ(Integrate(identity, 2, 2), 0);
}

TEST(Integrate, AConstantAloneTakesTheSign) {
    EXPECT_EQ(IntegrateConstant(3, 1, 5), 12);
    EXPECT_EQ(IntegrateConstant(3, 5, 1), -12);
    EXPECT_EQ(FailureOf([] { IntegrateConstant(1e300, 0, 1e10); }), FailureCode::Overflow);
}

TEST(Integrate, StopsWithTheAccuracyAskedOrAfterTenRounds) {
    int calls = 0;
    const auto parabola = [&calls](double x) {
        ++calls;
        return 1 + x * x;
    };
    // Simpson is exact from the second round on, the third agrees with it: 2 + 1 + 2 values.
    EXPECT_NEAR(Integrate(parabola, 0, 3), 12, 1e-12);
    EXPECT_EQ(calls, 5);
    calls = 0;
    EXPECT_EQ(Integrate([&calls](double) { return ++calls, 0.0; }, 0, 1), 0);  // nothing agrees with 0
    EXPECT_EQ(calls, 513);
    calls = 0;
    // The area is 2/3; the vertical start keeps the rounds apart.
    const auto root = [&calls](double x) {
        ++calls;
        return std::sqrt(x);
    };
    EXPECT_NEAR(Integrate(root, 0, 1, 1e-12), 2.0 / 3, 1e-5);
    EXPECT_EQ(calls, 513);
}

TEST(Integrate, PassesFailuresOn) {
    EXPECT_EQ(FailureOf([] { Integrate([](double x) { return CheckedDivide(1, x); }, 0, 1); }),
              FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { Integrate([](double x) { return 1e308 * x; }, 0, 10); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { Integrate([](double x) { return x; }, -1e308, 1e308); }), FailureCode::Overflow);
}

TEST(FunctionRef, CallsTheObjectItWasMadeFrom) {
    int calls = 0;
    auto counter = [&calls](double x) mutable { return x + ++calls; };
    const RealFunction reference = counter;
    const RealFunction copy = reference;
    EXPECT_EQ(reference(1), 2);
    EXPECT_EQ(copy(1), 3);
    EXPECT_EQ(calls, 2);
    static_assert(!std::is_constructible_v<RealFunction, int>);
    static_assert(!std::is_constructible_v<RealFunction, double (*)(const char*)>);
}

}  // namespace
}  // namespace tavrelo::numeric
