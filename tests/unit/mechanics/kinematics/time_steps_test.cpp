#include "mechanics/kinematics/time_steps.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::kinematics {
namespace {

using numeric::FailureCode;
using testing::FailureOf;

TEST(TimeSteps, DerivativeStepsShrinkTowardsZero) {
    EXPECT_EQ(DerivativeStep(20), 0.5);
    EXPECT_EQ(DerivativeStep(5), 0.5);
    EXPECT_DOUBLE_EQ(DerivativeStep(-1), 0.1);
    EXPECT_EQ(DerivativeStep(0), 0);
    EXPECT_DOUBLE_EQ(SecondDerivativeStep(4), 0.04);
    EXPECT_EQ(SecondDerivativeStep(0), 0);
}

/// Here two estimates from long steps agree by chance at -238.9072.
TEST(TimeSteps, ASlopeIsNotTakenInByChance) {
    constexpr double kTime = 3.84;
    const auto f = [](double t) {
        return 4.41 - 6.66 * std::sin(1.77 * t) - 5.17 * t * t * t - 3.14 / (t + 3.71);
    };
    const double slope = -6.66 * 1.77 * std::cos(1.77 * kTime) - 5.17 * 3 * kTime * kTime +
                         3.14 / ((kTime + 3.71) * (kTime + 3.71));
    EXPECT_NEAR(SlopeAt(f, kTime, DerivativeStep(kTime)), slope, 1e-6);
    EXPECT_NEAR(SlopeAt(f, kTime, 0.5), slope, 1e-6);
}

TEST(TimeSteps, EqualStepsHoldBothEnds) {
    EXPECT_EQ(EqualSteps(1, 3, 4), (std::vector<double>{1, 1.5, 2, 2.5, 3}));
    EXPECT_EQ(FailureOf([] { EqualSteps(-1e308, 1e308, 4); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { RequireSpan(2, 2); }), FailureCode::OutOfDomain);
}

/// The five-point formulas are exact for polynomials of the fourth degree, at the ends too.
TEST(TimeSteps, SlopeIsExactForFourthPowers) {
    constexpr double kStep = 0.25;
    std::vector<double> column;
    for (int k = 0; k < 9; ++k)
        column.push_back(std::pow(k * kStep - 1, 4) + 3 * k * kStep);
    const std::vector<double> slopes = SlopeOf(column, kStep);
    ASSERT_EQ(slopes.size(), column.size());
    for (int k = 0; k < 9; ++k)
        EXPECT_NEAR(slopes[static_cast<std::size_t>(k)], 4 * std::pow(k * kStep - 1, 3) + 3, 1e-12) << k;
    EXPECT_EQ(FailureOf([] { SlopeOf({1, 2, 3, 4}, 1); }), FailureCode::SubscriptRange);
}

}  // namespace
}  // namespace tavrelo::mechanics::kinematics
