#include "numeric/polynomials.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <random>

#include "../failure_code.h"
#include "numeric/angles.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

constexpr double kTolerance = 1e-12;

TEST(QuadRoots, RealRootsInTheOrderOfTheStableForm) {
    struct Row {
        double a, b, c, first, second;
    };
    for (const Row& row :
         {Row{1, 0, -4, 2, -2}, Row{1, -3, 2, 2, 1}, Row{1, 3, 2, -2, -1}, Row{2, -8, 8, 2, 2},
          Row{1, 0, 0, 0, 0}, Row{-1, 0, 9, 3, -3}, Row{1, -1e9, 1, 1e9, 1e-9}}) {
        const QuadraticRoots roots = QuadRoots(row.a, row.b, row.c);
        EXPECT_TRUE(roots.real);
        EXPECT_DOUBLE_EQ(roots.first, row.first);
        EXPECT_DOUBLE_EQ(roots.second, row.second);
    }
}

TEST(QuadRoots, AComplexPairAsRealAndImaginaryPart) {
    struct Row {
        double a, b, c, re, im;
    };
    for (const Row& row : {Row{1, 0, 4, 0, 2}, Row{1, -2, 5, 1, 2}, Row{-1, 2, -5, 1, -2}}) {
        const QuadraticRoots roots = QuadRoots(row.a, row.b, row.c);
        EXPECT_FALSE(roots.real);
        EXPECT_DOUBLE_EQ(roots.first, row.re);
        EXPECT_DOUBLE_EQ(roots.second, row.im);
    }
}

TEST(QuadRoots, WhatIsNoQuadraticFails) {
    EXPECT_EQ(FailureOf([] { QuadRoots(0, 2, 1); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { QuadRoots(0, 0, 1); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { QuadRoots(1, 1e200, 1); }), FailureCode::Overflow);
}

TEST(CubicRoots, ThreeRealRoots) {
    // (x - 1)(x - 2)(x - 3) and 2 (x + 4)(x - 0.5)(x - 5), in the order of the trigonometric form.
    const CubicRootsResult first = CubicRoots(1, -6, 11, -6);
    EXPECT_TRUE(first.real);
    EXPECT_NEAR(first.first, 1, kTolerance);
    EXPECT_NEAR(first.second, 3, kTolerance);
    EXPECT_NEAR(first.third, 2, kTolerance);
    const CubicRootsResult second = CubicRoots(2, -3, -39, 20);
    EXPECT_TRUE(second.real);
    EXPECT_NEAR(second.first, -4, kTolerance);
    EXPECT_NEAR(second.second, 5, kTolerance);
    EXPECT_NEAR(second.third, 0.5, kTolerance);
}

TEST(CubicRoots, OneRealRootAndAPair) {
    struct Row {
        double a, b, c, d, root, re, im;
    };
    const double half_root3 = std::sqrt(3) / 2;
    for (const Row& row :
         {Row{1, 0, 0, -1, 1, -0.5, half_root3}, Row{1, 0, 0, 1, -1, 0.5, -half_root3},
          // x (x^2 + 1): the symmetric case, where neither sign is given
          Row{1, 0, 1, 0, 0, 0, -1},
          // (x - 1)^2 (x - 2): a double root is a pair without an imaginary part
          Row{1, -4, 5, -2, 2, 1, 0}, Row{1, 0, 0, 0, 0, 0, 0}, Row{1, -3, 3, -1, 1, 1, 0}}) {
        const CubicRootsResult roots = CubicRoots(row.a, row.b, row.c, row.d);
        EXPECT_FALSE(roots.real);
        EXPECT_NEAR(roots.first, row.root, kTolerance);
        EXPECT_NEAR(roots.second, row.re, kTolerance);
        EXPECT_NEAR(roots.third, row.im, kTolerance);
    }
}

TEST(CubicRoots, WithoutACubeTheFirstSlotIsZero) {
    const CubicRootsResult roots = CubicRoots(0, 1, -3, 2);
    EXPECT_TRUE(roots.real);
    EXPECT_EQ(roots.first, 0);
    EXPECT_EQ(roots.second, 2);
    EXPECT_EQ(roots.third, 1);
    EXPECT_FALSE(CubicRoots(0, 1, 0, 4).real);
    EXPECT_EQ(FailureOf([] { CubicRoots(0, 0, 1, 1); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { CubicRoots(1, 1e150, 1, 1); }), FailureCode::Overflow);
}

TEST(CubicRoots, AlmostDoubleRootsStayNearTheirValue) {
    // Where the quotient under the arccosine rounds to 1 its end values must not come in.
    std::mt19937 random(1);
    std::uniform_real_distribution<double> roots(-3, 3);
    for (int i = 0; i < 2000; ++i) {
        const double twice = roots(random);
        const double once = roots(random);
        const CubicRootsResult found =
            CubicRoots(1, -(2 * twice + once), twice * twice + 2 * twice * once, -twice * twice * once);
        const double nearest = found.real
                                   ? std::min({std::abs(found.first - once), std::abs(found.second - once),
                                               std::abs(found.third - once)})
                                   : std::abs(found.first - once);
        // A perturbation e of the coefficients moves a threefold root by e^(1/3).
        EXPECT_LT(nearest, 1e-4) << twice << " twice, " << once;
    }
}

TEST(SolveCosSin, TwoAngles) {
    // cos t = 1/2, sin t = 1/2, and 3 cos t + 4 sin t = 5 cos(t - 53.13...) = 2.5.
    EXPECT_EQ(SolveCosSin(1, 0, -0.5), std::pair(-60.0, 60.0));
    EXPECT_EQ(SolveCosSin(0, 1, -0.5), std::pair(30.0, 150.0));
    const auto angles = SolveCosSin(3, 4, -2.5);
    ASSERT_TRUE(angles);
    EXPECT_NEAR(angles->first, 53.13010235415598 - 60, 1e-11);
    EXPECT_NEAR(angles->second, 53.13010235415598 + 60, 1e-11);
}

TEST(SolveCosSin, TangentWithinOnePartInTenThousand) {
    EXPECT_EQ(SolveCosSin(1, 0, -1), std::pair(0.0, 0.0));
    EXPECT_EQ(SolveCosSin(1, 0, -1.00009), std::pair(0.0, 0.0));
    EXPECT_EQ(SolveCosSin(1, 0, -0.99991), std::pair(0.0, 0.0));
    EXPECT_EQ(SolveCosSin(1, 0, 1), std::pair(180.0, 180.0));
    EXPECT_EQ(SolveCosSin(0, 2, 2), std::pair(-90.0, -90.0));
    EXPECT_EQ(SolveCosSin(0, 0, 0), std::pair(180.0, 180.0));
    EXPECT_NE(SolveCosSin(1, 0, -0.9998), std::pair(0.0, 0.0));
}

TEST(SolveCosSin, NoAngle) {
    EXPECT_FALSE(SolveCosSin(1, 0, -2));
    EXPECT_FALSE(SolveCosSin(3, 4, 5.01));
    EXPECT_FALSE(SolveCosSin(0, 0, 1));
}

TEST(CosSinRoots, KeepsNearRootsApart) {
    // 200.016 sin t = 200: sin t = 0.99992..., 90 degrees less or more 0.72476...
    const auto near = CosSinRoots(0, 200.016, -200);
    ASSERT_TRUE(near);
    const double apart = std::acos(200 / 200.016) * 180 / std::acos(-1.0);
    EXPECT_NEAR(near->first, 90 - apart, 1e-9);
    EXPECT_NEAR(near->second, 90 + apart, 1e-9);
    EXPECT_FALSE(CosSinRoots(0, 199.984, -200));
    EXPECT_FALSE(CosSinRoots(0, 0, 0));
}

TEST(CosSinRoots, MeetsAtTheTangent) {
    EXPECT_NEAR(CosSinRoots(0, 2, -2)->first, 90, 1e-9);
    EXPECT_NEAR(CosSinRoots(0, 2, -2)->second, 90, 1e-9);
    EXPECT_NEAR(CosSinRoots(1, 0, 1)->first, 180, 1e-9);
}

}  // namespace
}  // namespace tavrelo::numeric
