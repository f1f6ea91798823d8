#include "numeric/fits.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;
using List = std::vector<double>;

void ExpectNear(const List& found, const List& expected, double tolerance) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], tolerance) << i;
}

TEST(PolyVal, SumsAscendingPowers) {
    EXPECT_EQ(PolyVal(List{3, -2, 1}, 4), 11);
    EXPECT_EQ(PolyVal(List{3, -2, 1}, 0), 3);
    EXPECT_EQ(PolyVal(List{}, 5), 0);
    EXPECT_EQ(FailureOf([] { PolyVal(List{0, 0, 1}, 1e200); }), FailureCode::Overflow);
}

TEST(PolyFit, TheLineThroughTwoPoints) {
    const auto coefs = PolyFit(1, List{0, 1}, List{1, 3});
    ASSERT_TRUE(coefs);
    ExpectNear(*coefs, {1, 2}, 1e-14);
    EXPECT_NEAR(Correlation(List{0, 1}, List{1, 3}), 1, 1e-14);
}

// Least squares of (0, 1), (1, 2), (2, 2), (3, 5), (4, 4), solved in fractions.
TEST(PolyFit, PolynomialsOfLeastSquares) {
    const List xs = {0, 1, 2, 3, 4};
    const List ys = {1, 2, 2, 5, 4};
    const List expected[] = {
        {14.0 / 5},
        {1, 9.0 / 10},
        {6.0 / 7, 83.0 / 70, -1.0 / 14},
        {81.0 / 70, -27.0 / 28, 10.0 / 7, -1.0 / 4},
    };
    for (int degree = 0; degree < 4; ++degree) {
        const auto coefs = PolyFit(degree, xs, ys);
        ASSERT_TRUE(coefs) << degree;
        ExpectNear(*coefs, expected[degree], 1e-10);
    }
}

TEST(PolyFit, FindsThePolynomialOnWhichThePointsLie) {
    const List polynomial = {-3, 0.5, 2, -1};
    List xs, ys;
    for (const double x : {-2.0, -1.0, 0.0, 0.5, 1.5, 3.0}) {
        xs.push_back(x);
        ys.push_back(PolyVal(polynomial, x));
    }
    const auto coefs = PolyFit(3, xs, ys);
    ASSERT_TRUE(coefs);
    ExpectNear(*coefs, polynomial, 1e-10);
}

TEST(PolyFit, TooFewDifferentPointsHaveNoFit) {
    EXPECT_FALSE(PolyFit(1, List{2, 2, 2}, List{1, 3, 5}));
    EXPECT_FALSE(PolyFit(2, List{0, 1}, List{1, 3}));
    EXPECT_FALSE(PolyFit(0, List{}, List{}));
    EXPECT_FALSE(PolyFit(1, List{0, 1e-5}, List{1, 3}));           // a determinant of 1e-10
    EXPECT_FALSE(PolyFit(2, List{0, 1e70, 1e75}, List{0, 1, 2}));  // one of about 1e440
}

TEST(PolyFit, WhatCannotBeSetUpFails) {
    EXPECT_EQ(FailureOf([] { PolyFit(-1, List{0, 1}, List{1, 3}); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { PolyFit(1000000000, List{0, 1}, List{1, 3}); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { PolyFit(1, List{0, 1}, List{1}); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { PolyFit(1, List{0, 1e200}, List{1, 3}); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { PolyFit(1, List{10, 20}, List{1e308, 1e308}); }), FailureCode::Overflow);
}

// The first of Anscombe's four sets: sums in fractions, the published line and correlation.
TEST(LineSums, OfAPublishedSet) {
    const List xs = {10, 8, 13, 9, 11, 14, 6, 4, 12, 7, 5};
    const List ys = {8.04, 6.95, 7.58, 8.81, 8.33, 9.96, 7.24, 4.26, 10.84, 4.82, 5.68};
    const auto coefs = PolyFit(1, xs, ys);
    ASSERT_TRUE(coefs);
    ExpectNear(*coefs, {3.000090909090909, 0.5000909090909091}, 1e-12);
    EXPECT_NEAR(Correlation(xs, ys), 0.8164205163448399, 1e-12);
    const LineSums sums = SumsOf(xs, ys);
    EXPECT_EQ(sums.x, 99);
    EXPECT_NEAR(sums.y, 82.51, 1e-12);
    EXPECT_EQ(sums.xx, 1001);
    EXPECT_NEAR(sums.yy, 660.1727, 1e-11);
    EXPECT_NEAR(sums.xy, 797.6, 1e-11);
    EXPECT_EQ(sums.mean_x, 9);
    EXPECT_NEAR(sums.mean_y, 82.51 / 11, 1e-13);
}

TEST(Correlation, FailsWithoutSpread) {
    EXPECT_EQ(FailureOf([] {
                  Correlation(List{1, 2, 3}, List{0.1, 0.1, 0.1});
              }),
              FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { Correlation(List{0.3, 0.3}, List{1, 2}); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { Correlation(List{}, List{}); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { Correlation(List{1, 2}, List{1}); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { SumsOf(List{1e200}, List{1}); }), FailureCode::Overflow);
}

TEST(Correlation, OfAFallingLineIsMinusOne) {
    EXPECT_NEAR(Correlation(List{3, 1, 2}, List{-6, -2, -4}), -1, 1e-14);
}

TEST(SamplePolynomial, RunsFromTheLeastToTheLargest) {
    const CurveSamples samples = SamplePolynomial(List{0, 0, 1}, List{3, -1, 2}, 5);
    ExpectNear(samples.xs, {-1, 0, 1, 2, 3}, 1e-15);
    ExpectNear(samples.ys, {1, 0, 1, 4, 9}, 1e-14);
    EXPECT_EQ(FailureOf([] { SamplePolynomial(List{1}, List{}, 5); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { SamplePolynomial(List{1}, List{0, 1}, 1); }), FailureCode::SubscriptRange);
}

TEST(LogarithmsOf, NeedPositiveValues) {
    const auto logarithms = LogarithmsOf(List{1, std::exp(2)});
    ASSERT_TRUE(logarithms);
    ExpectNear(*logarithms, {0, 2}, 1e-14);
    EXPECT_FALSE(LogarithmsOf(List{1, 0}));
    EXPECT_FALSE(LogarithmsOf(List{-1, 2}));
}

}  // namespace
}  // namespace tavrelo::numeric
