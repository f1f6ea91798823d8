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
