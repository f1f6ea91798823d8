// The root scan of an expression. It goes by sign, so what it reports at poles and on the grid is part of it.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

struct ScanRow {
    std::string formula;
    double low;
    double high;
    double interval;
    std::vector<double> roots;
};

void PrintTo(const ScanRow& row, std::ostream* out) { *out << row.formula; }

class RootScan : public ::testing::TestWithParam<ScanRow> {};

TEST_P(RootScan, Finds) {
    constexpr double kTolerance = 1e-12;
    const ScanRow& row = GetParam();
    CExpression expression(testing::kDegrees);
    expression.SetExpression(row.formula);
    expression.FindRoots(row.low, row.high, row.interval, "", kTolerance);
    ASSERT_EQ(expression.RootsCount(), static_cast<int>(row.roots.size())) << row.formula;
    for (int i = 0; i < expression.RootsCount(); ++i) {
        EXPECT_NEAR(expression.Root(i + 1), row.roots[static_cast<std::size_t>(i)], 1e-9) << row.formula;
    }
}

INSTANTIATE_TEST_SUITE_P(SimpleRoots, RootScan,
                         ::testing::Values(ScanRow{"X^2-2", 0, 2, 0.5, {std::sqrt(2)}},
                                           ScanRow{"X^2-2", -2, 2.1, 0, {-std::sqrt(2), std::sqrt(2)}},
                                           ScanRow{"SEN(X)", 100, 600, 45, {180, 360, 540}},
                                           ScanRow{"(X-1)*(X-2)*(X-3)", 0.3, 3.4, 0.5, {1, 2, 3}},
                                           ScanRow{"X^2+1", -2, 2, 0.5, {}},
                                           // the last step passes the high limit
                                           ScanRow{"X-1.2", 0, 1, 0.5, {1.2}}));

INSTANTIATE_TEST_SUITE_P(OnTheGrid, RootScan,
                         ::testing::Values(ScanRow{"X", -1, 1, 0.5, {0, 0}}, ScanRow{"X", 0, 1, 0.5, {0}},
                                           ScanRow{"X^2", -1, 1, 0.5, {0, 0}},
                                           ScanRow{"X^2", -1.1, 1, 0.5, {}}));

INSTANTIATE_TEST_SUITE_P(Limits, RootScan,
                         ::testing::Values(ScanRow{"X-0.5", 0, -5, 1, {0.5}},   // one step from the low limit
                                           ScanRow{"X-1.5", 0, -5, 1, {}},      //
                                           ScanRow{"X", 0, 0, 0, {}},           // no range at all
                                           ScanRow{"X-0.5", 0, 1, 1e-300, {}},  // no headway
                                           ScanRow{"X", 1e300, -1e300, 1e-9, {}},
                                           // the step leaves the range of numbers
                                           ScanRow{"X", 1.5e308, 1.7e308, 1e308, {}}));

TEST(RootScan, APoleIsReportedAsARoot) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("1/(X-0.3)");
    expression.FindRoots(0, 1, 0.25, "", 1e-9);
    ASSERT_EQ(expression.RootsCount(), 1);
    EXPECT_GE(expression.Root(1), 0.25);
    EXPECT_LE(expression.Root(1), 0.5);
}

TEST(RootScan, AFailedValueCountsAsZeroForTheNextStep) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("1/X");
    expression.FindRoots(-1, 1, 0.5, "", 1e-9);
    ASSERT_EQ(expression.RootsCount(), 1);
    EXPECT_EQ(expression.Root(1), 0);
    expression.SetExpression("LN(X-5)");
    expression.FindRoots(-1, 1, 0.5, "", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 0);
}

TEST(RootScan, OverTheVariableThatIsNamed) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("X+Y");
    expression.Variable("X", false)->Value = -3.25;
    expression.Variable("Y", false)->Value = "antes";
    expression.FindRoots(0, 5, 1, "y", 1e-12);
    ASSERT_EQ(expression.RootsCount(), 1);
    EXPECT_NEAR(expression.Root(1), 3.25, 1e-9);
    EXPECT_EQ(expression.Variable("Y", false)->Value, text::Value("antes"));
    EXPECT_EQ(expression.Variable("X", false)->Value, text::Value(-3.25));
}

TEST(RootScan, WithoutItsVariableNothingIsSearched) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("2-2");
    expression.FindRoots(0, 1, 0.5, "", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 0);
    expression.SetExpression("X-0.3");
    expression.FindRoots(0, 1, 0.25, "Y", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 0);
    expression.FindRoots(0, 1, 0.25, "X", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 1);
    expression.FindRoots(0, 1, 0.25, "Y", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 1);
}

TEST(RootScan, ANewFormulaForgetsTheRoots) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("X-0.3");
    expression.FindRoots(0, 1, 0.25, "", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 1);
    EXPECT_EQ(expression.Root(0), 0);
    EXPECT_EQ(expression.Root(2), 0);
    expression.SetExpression("X");
    EXPECT_EQ(expression.RootsCount(), 0);
    EXPECT_EQ(expression.Root(1), 0);
}

TEST(RootScan, LimitsThatAreNotFiniteFindNothing) {
    const double infinity = std::numeric_limits<double>::infinity();
    CExpression expression(testing::kDegrees);
    expression.SetExpression("X");
    expression.FindRoots(-infinity, infinity, 0, "", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 0);
    expression.FindRoots(-1, 1, std::numeric_limits<double>::quiet_NaN(), "", 1e-9);
    EXPECT_EQ(expression.RootsCount(), 0);
}

}  // namespace
}  // namespace tavrelo::expr
