#include "numeric/linear_systems.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "../failure_code.h"
#include "numeric/dependence.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;
using List = std::vector<double>;

SquareMatrix Diagonal(const List& diagonal) {
    SquareMatrix matrix(diagonal.size());
    for (std::size_t i = 0; i < diagonal.size(); ++i)
        matrix(i, i) = diagonal[i];
    return matrix;
}

/// Whole numbers from -9 to 9, so that products with whole numbers are exact.
SquareMatrix RandomMatrix(std::size_t order, std::mt19937& random) {
    std::uniform_int_distribution<int> element(-9, 9);
    SquareMatrix matrix(order);
    for (std::size_t row = 0; row < order; ++row)
        for (std::size_t column = 0; column < order; ++column)
            matrix(row, column) = element(random);
    return matrix;
}

List Product(const SquareMatrix& a, const List& x) {
    List b(x.size());
    for (std::size_t row = 0; row < x.size(); ++row)
        for (std::size_t column = 0; column < x.size(); ++column)
            b[row] += a(row, column) * x[column];
    return b;
}

TEST(SquareMatrix, TakesItsElementsRowAfterRow) {
    const SquareMatrix matrix(2, List{1, 2, 3, 4});
    EXPECT_EQ(matrix(0, 1), 2);
    EXPECT_EQ(matrix(1, 0), 3);
    EXPECT_EQ(matrix.Column(1)[0], 2);
    EXPECT_EQ(FailureOf([] { SquareMatrix(2, List{1, 2, 3}); }), FailureCode::SubscriptRange);
}

TEST(Determinant, OfMatricesWithKnownOnes) {
    struct Row {
        std::size_t order;
        List elements;
        double determinant;
    };
    const Row rows[] = {
        {1, {-7}, -7},
        {2, {2, 1, 1, 3}, 5},
        {2, {0, 1, 1, 0}, -1},
        {3, {2, 0, 1, 1, 3, 2, 1, 1, 4}, 18},  // by the rule of Sarrus: 24 + 0 + 1 - 3 - 4 - 0
        {3, {0, 2, 0, 0, 0, 3, 4, 0, 0}, 24},  // a cyclic exchange is even
        // Vandermonde of 1, 2, 4, 7: (2-1)(4-1)(7-1)(4-2)(7-2)(7-4)
        {4, {1, 1, 1, 1, 1, 2, 4, 8, 1, 4, 16, 64, 1, 7, 49, 343}, 540},
        {2, {0, 0, 1, 2}, 0},
    };
    for (const Row& row : rows)
        EXPECT_NEAR(Determinant(SquareMatrix(row.order, row.elements)), row.determinant, 1e-11);
}

TEST(Determinant, OfTheHilbertMatrixOfOrderFive) {
    SquareMatrix hilbert(5);
    for (std::size_t row = 0; row < 5; ++row)
        for (std::size_t column = 0; column < 5; ++column)
            hilbert(row, column) = 1.0 / static_cast<double>(row + column + 1);
    EXPECT_NEAR(Determinant(hilbert) * 266716800000.0, 1.0, 1e-10);  // 1/266716800000, known in closed form
}

TEST(Determinant, PastTheRangeFails) {
    EXPECT_EQ(FailureOf([] { Determinant(Diagonal({1e200, 1e200})); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { Determinant(Diagonal({1e-320, 1})); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] {
                  Determinant(SquareMatrix(2, List{1e308, 1e308, 1e308, -1e308}));
              }),
              FailureCode::Overflow);
}

TEST(LUDec, OfEqualCandidatesTheLastRowIsThePivot) {
    SquareMatrix matrix(3, List{1, 1, 0, 2, 2, 1, 1, -1, 0});
    Permutation permutation;
    double determinant = 0;
    EXPECT_EQ(LUDec(matrix, permutation, determinant), LinearOutcome::Done);
    // Scaled by their rows' largest elements the first column is 1, 1, 1.
    EXPECT_EQ(permutation[0], 2u);
    EXPECT_NEAR(determinant, 2, 1e-14);  // 1 (0 + 1) - 1 (0 - 1)
}

TEST(LUDec, ARowKeepsItsScaleWhenItIsMoved) {
    SquareMatrix matrix(3, List{100, 1, 10, 2, 5, 5, 10, 2, 3});
    Permutation permutation;
    double determinant = 0;
    EXPECT_EQ(LUDec(matrix, permutation, determinant), LinearOutcome::Done);
    // Weighed by 1/100, 1/5, 1/10: the third row comes first. Then 4.6 of the second row weighs 0.92 and -19
    // of the first, now the third one, 0.19.
    EXPECT_EQ(permutation, (Permutation{2, 1, 2}));
    EXPECT_NEAR(determinant, 100 * (15 - 10) - (6 - 50) + 10 * (4 - 50), 1e-11);
}

TEST(LUDec, ARowOfZerosIsRefusedAndLeavesTheDeterminant) {
    SquareMatrix matrix(2, List{1, 2, 0, 0});
    Permutation permutation;
    double determinant = 5;
    EXPECT_EQ(LUDec(matrix, permutation, determinant), LinearOutcome::NotFactored);
    EXPECT_EQ(determinant, 5);
    EXPECT_EQ(matrix(0, 1), 2);
}

TEST(LUDec, AZeroPivotGoesOnAsATinyOne) {
    SquareMatrix matrix(2, List{1, 1, 1, 1});
    Permutation permutation;
    double determinant = 0;
    EXPECT_EQ(LUDec(matrix, permutation, determinant), LinearOutcome::Done);
    EXPECT_DOUBLE_EQ(std::abs(determinant), 1e-20);
}

TEST(LUDec, HoldsUpToItsLargestOrder) {
    SquareMatrix largest = Diagonal(List(kLargestOrder, 1.0));
    Permutation permutation;
    double determinant = 0;
    EXPECT_EQ(LUDec(largest, permutation, determinant), LinearOutcome::Done);
    EXPECT_EQ(determinant, 1);
    EXPECT_EQ(FailureOf([] { Determinant(SquareMatrix(kLargestOrder + 1)); }), FailureCode::SubscriptRange);
}

TEST(LUBack, TellsAFailureInsteadOfThrowing) {
    List b = {1, 1};
    EXPECT_EQ(LUBack(Diagonal({1, 0}), b, {0, 1}), LinearOutcome::NotSubstituted);
    b = {1e300, 1};
    EXPECT_EQ(LUBack(Diagonal({1e-20, 1}), b, {0, 1}), LinearOutcome::NotSubstituted);
    EXPECT_EQ(FailureOf([&] { LUBack(Diagonal({1, 1, 1}), b, {0, 1, 2}); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([&] { LUBack(Diagonal({1, 1}), b, {0}); }), FailureCode::SubscriptRange);
}

TEST(LUBack, SolvesSeveralRightSidesWithTheSameFactors) {
    std::mt19937 random(4);
    for (std::size_t order = 1; order <= 20; ++order) {
        const SquareMatrix matrix = RandomMatrix(order, random);
        SquareMatrix factors = matrix;
        Permutation permutation;
        double determinant = 0;
        ASSERT_EQ(LUDec(factors, permutation, determinant), LinearOutcome::Done);
        if (std::abs(determinant) < 0.5)  // whole numbers have a whole determinant
            continue;
        for (std::size_t unit = 0; unit < order; ++unit) {
            List expected(order);
            expected[unit] = 3;
            List b = Product(matrix, expected);
            ASSERT_EQ(LUBack(factors, b, permutation), LinearOutcome::Done);
            for (std::size_t i = 0; i < order; ++i)
                EXPECT_NEAR(b[i], expected[i], 1e-9) << order;
        }
    }
}

TEST(SolveLinear, ADeterminantBelowTheLimitCountsAsZeroAtAnyScale) {
    for (const double size : {1e-9, 1e-8, -1e-9}) {
        SquareMatrix matrix = Diagonal({size, 1});
        List b = {1, 2};
        EXPECT_EQ(SolveLinear(matrix, b), LinearOutcome::DeterminantIsZero) << size;
        EXPECT_EQ(b, (List{1, 2}));
    }
    SquareMatrix small = Diagonal({1.1e-8, 1});
    List b = {1.1, 2};
    EXPECT_EQ(SolveLinear(small, b), LinearOutcome::Done);
    EXPECT_NEAR(b[0], 1e8, 1e-6);
}

TEST(SolveLinear, SingularSystemsAreRefused) {
    for (const List& rows : {List{1, 2, 2, 4}, List{0, 0, 1, 1}, List{1, 1, 1, 1}}) {
        SquareMatrix matrix(2, rows);
        List b = {1, 2};
        EXPECT_EQ(SolveLinear(matrix, b), LinearOutcome::DeterminantIsZero);
        EXPECT_EQ(b, (List{1, 2}));
    }
}

TEST(SolveLinear, AnOverflowIsNoSolution) {
    SquareMatrix large = Diagonal({1e200, 1e200});
    List b = {1, 1};
    EXPECT_EQ(SolveLinear(large, b), LinearOutcome::SystemNotSolved);
    SquareMatrix steep = Diagonal({1e-7, 1});
    b = {1e305, 1};
    EXPECT_EQ(SolveLinear(steep, b), LinearOutcome::SystemNotSolved);
    SquareMatrix wrong = Diagonal({1, 1, 1});
    EXPECT_EQ(FailureOf([&] { SolveLinear(wrong, b); }), FailureCode::SubscriptRange);
}

TEST(SolveLinear, NothingButNumbersLeavesIt) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-308, 308);
    std::uniform_int_distribution<int> order(1, 6);
    const auto element = [&] { return std::pow(10, exponent(random)) * (random() % 2 == 0 ? 1 : -1); };
    int counts[3] = {};
    for (int i = 0; i < 3000; ++i) {
        SquareMatrix matrix(static_cast<std::size_t>(order(random)));
        List b(matrix.Order());
        for (std::size_t column = 0; column < matrix.Order(); ++column)
            for (double& a : matrix.Column(column))
                a = element();
        for (double& right_side : b)
            right_side = element();
        switch (SolveLinear(matrix, b)) {
            case LinearOutcome::Done:
                ++counts[0];
                for (const double x : b)
                    EXPECT_TRUE(std::isfinite(x));
                break;
            case LinearOutcome::DeterminantIsZero:
                ++counts[1];
                break;
            default:
                ++counts[2];
        }
    }
    for (const int count : counts)
        EXPECT_GT(count, 100);
}

/// The third row is twice the first and three times the second: rounding leaves a pivot of about 1e-14 and,
/// the numbers being large, a determinant above the limit.
TEST(SolveIndependent, RefusesRowsThatDependOnEachOther) {
    const std::vector<double> rows = {910.5, -789.2, 137.7, -779.0, -837.4, 298.0, -516.0, -4090.6, 1169.4};
    SquareMatrix unguarded(3, rows);
    std::vector<double> made_up = {100, 200, 301};
    EXPECT_EQ(SolveLinear(unguarded, made_up), LinearOutcome::Done);

    SquareMatrix dependent(3, rows);
    std::vector<double> b = {100, 200, 301};
    EXPECT_EQ(SolveIndependent(dependent, b), LinearOutcome::DeterminantIsZero);
    EXPECT_EQ(b, (std::vector<double>{100, 200, 301}));
}

/// The second row is twice the first less three times the third. The first two columns are nearly parallel,
/// so that the pivot in the second one is small and the rounding of the last one large: more than its limit.
TEST(SolveIndependent, RefusesDependentRowsBehindASmallPivot) {
    SquareMatrix dependent(
        3, std::vector<double>{472.67, 336.5, 241.71, -61.19, -43.52, 1437.42, 335.51, 238.84, -318});
    std::vector<double> b = {-103.02, 101.93, 153.65};
    EXPECT_EQ(SolveIndependent(dependent, b), LinearOutcome::DeterminantIsZero);
}

/// The same rows, looked at by their factors alone.
TEST(HasRoundingPivot, TellsAPivotOfRoundingFromASmallOne) {
    const auto has = [](const std::vector<double>& rows) {
        SquareMatrix a(3, rows);
        const std::vector<double> largest = LargestOfRows(a);
        Permutation permutation;
        double determinant = 0;
        EXPECT_EQ(LUDec(a, permutation, determinant), LinearOutcome::Done);
        return HasRoundingPivot(a, permutation, largest);
    };
    EXPECT_TRUE(has({910.5, -789.2, 137.7, -779.0, -837.4, 298.0, -516.0, -4090.6, 1169.4}));
    EXPECT_FALSE(has({910.5, -789.2, 137.7, -779.0, -837.4, 298.0, -516.0, -4090.6, 1169.5}));
    EXPECT_FALSE(has({1, 0, 0, 0, 1e-6, 0, 0, 0, 1e6}));
}

TEST(AreDependent, GoesByRowsAndColumnsOfOneSize) {
    struct Row {
        std::size_t order;
        std::vector<double> elements;
        bool are_dependent;
    };
    const Row rows[] = {
        {1, {3}, false},
        {1, {0}, true},
        {2, {1, 2, 2, 4}, true},
        {2, {1, 2, 2, 4.0001}, false},
        {2, {1, 1e14, 0, 1}, false},
        {2, {1e-200, 0, 0, 1e200}, false},
        {2, {0, 1, 0, 5}, true},
        {3, {1, 2, 3, 4, 5, 6, 7, 8, 9}, true},
        {3, {1, 2, 3, 4, 5, 6, 7, 8, 10}, false},
        {3, {0.1, 0.2, 0.3, 1e6, 2e6, 3e6, 5, 7, 9}, true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(AreDependent(SquareMatrix(row.order, row.elements)), row.are_dependent) << row.elements[0];
}

/// Rows of very different size, given in the order that makes every step exchange, are as good as any.
TEST(SolveIndependent, SolvesWhatIsOnlyBadlyScaled) {
    SquareMatrix a(3, std::vector<double>{1e-6, 0, 0, 1e-6, 1e6, 0, 1, 1, 1e3});
    std::vector<double> b = {1e-6, 2e6 + 1e-6, 1 + 2 + 3e3};
    EXPECT_EQ(SolveIndependent(a, b), LinearOutcome::Done);
    for (const double expected : {1.0, 2.0, 3.0})
        EXPECT_NEAR(b[static_cast<std::size_t>(expected) - 1], expected, 1e-9);
}

TEST(SolveIndependent, KeepsTheLimitOfTheDeterminant) {
    SquareMatrix small(2, std::vector<double>{1e-5, 0, 0, 1e-4});
    std::vector<double> b = {1, 1};
    EXPECT_EQ(SolveIndependent(small, b), LinearOutcome::DeterminantIsZero);
}

TEST(LinearOutcome, HasItsMessage) {
    EXPECT_EQ(TextOf(LinearOutcome::Done), "");
    EXPECT_EQ(TextOf(LinearOutcome::NotFactored), "Falló la rutina LUDec.");
    EXPECT_EQ(TextOf(LinearOutcome::NotSubstituted), "Falló la rutina LUBack.");
    EXPECT_EQ(TextOf(LinearOutcome::DeterminantIsZero), "El determinante del sistema es cero.");
    EXPECT_EQ(TextOf(LinearOutcome::SystemNotSolved), "No pude resolver el sistema.");
}

}  // namespace
}  // namespace tavrelo::numeric
