#include "numeric/compare.h"

#include <gtest/gtest.h>

#include <vector>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

TEST(Compare, NearEqCountsItsBound) {
    EXPECT_TRUE(NearEq(1, 1.5, 0.5));
    EXPECT_TRUE(NearEq(2, 2, 0));
    // 1.1 - 1 is a hair above 0.1 in doubles, and no margin is added.
    EXPECT_FALSE(NearEq(1, 1.1, 0.1));
    EXPECT_FALSE(NearEq(1, 1, -1));
    EXPECT_FALSE(NearEq(-3, 3, 5));
}

TEST(Compare, WithinPctDropsSignsAndCountsItsBounds) {
    EXPECT_TRUE(WithinPct(99, 100, 1));
    EXPECT_TRUE(WithinPct(101, -100, 1));
    EXPECT_TRUE(WithinPct(-100, 100, 0));
    EXPECT_TRUE(WithinPct(0, 0, 1));
    EXPECT_FALSE(WithinPct(98.9, 100, 1));
    EXPECT_FALSE(WithinPct(101.1, 100, 1));
    EXPECT_FALSE(WithinPct(0.1, 0, 1));
}

TEST(Compare, MaxArrRefusesAnEmptyList) {
    EXPECT_EQ(MaxArr(std::vector<double>{-3, -1, -2}), -1);
    EXPECT_EQ(FailureOf([] { MaxArr({}); }), FailureCode::SubscriptRange);
}

TEST(LargestRest, GoesWithTheLargestTermUpToAThousandth) {
    EXPECT_DOUBLE_EQ(LargestRest(0), 0);
    EXPECT_DOUBLE_EQ(LargestRest(0.1), 0.0001);
    EXPECT_DOUBLE_EQ(LargestRest(1), 0.001);
    EXPECT_DOUBLE_EQ(LargestRest(1e5), 0.001);
    EXPECT_DOUBLE_EQ(LargestRest(1e9), 1);
}

}  // namespace
}  // namespace tavrelo::numeric
