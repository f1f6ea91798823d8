#include "numeric/real_roots.h"

#include <gtest/gtest.h>

#include <vector>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

TEST(RealRoots, OfEveryDegree) {
    struct Row {
        double a, b, c;
        std::vector<double> roots;
    };
    const Row rows[] = {
        {1, -3, 2, {2, 1}},      // (x - 2)(x - 1), in the order of the quadratic
        {-1, 0, 9, {3, -3}},     //
        {1, -4, 4, {2}},         // equal roots once
        {1, -0.2, 0.01, {0.1}},  // equal but for rounding
        {1, 0, 0, {0}},          //
        {1, -5, 0, {5, 0}},      //
        {1, 0, 1, {}},           //
        {0, 2, -6, {3}},         // linear
        {0, 0, 5, {}},           // no unknown
        {0, 0, 0, {}},           //
    };
    for (const Row& row : rows) {
        const RealRootList roots = RealRoots(row.a, row.b, row.c);
        ASSERT_EQ(roots.size(), row.roots.size()) << row.a << " " << row.b << " " << row.c;
        for (std::size_t k = 0; k < roots.size(); ++k)
            EXPECT_DOUBLE_EQ(roots[k], row.roots[k]);
        EXPECT_EQ(roots.empty(), row.roots.empty());
    }
    EXPECT_EQ(FailureOf([] { RealRoots(1, 1e200, 1); }), FailureCode::Overflow);
}

TEST(CleanDifference, WhatOnlyRoundingLeavesIsZero) {
    EXPECT_EQ(CleanDifference(0.3, 0.1 * 3), 0.0);
    EXPECT_EQ(CleanDifference(1, 1), 0.0);
    // Rounding is measured against the terms, large or small.
    EXPECT_EQ(CleanDifference(1e6 + 1e-7, 1e6), 0.0);
    EXPECT_NEAR(CleanDifference(1.1e-6, 1e-6), 1e-7, 1e-18);
    EXPECT_EQ(CleanDifference(1, 0), 1.0);
    EXPECT_EQ(CleanDifference(-2, 2), -4.0);
    EXPECT_NEAR(CleanDifference(1 + 1e-9, 1), 1e-9, 1e-15);
    EXPECT_EQ(FailureOf([] { CleanDifference(1e308, -1e308); }), FailureCode::Overflow);
}

}  // namespace
}  // namespace tavrelo::numeric
