#include "numeric/checked.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Checked, OrdinaryResultsPass) {
    EXPECT_EQ(CheckedAdd(2, 3), 5);
    EXPECT_EQ(CheckedSubtract(2, 3), -1);
    EXPECT_EQ(CheckedMultiply(2, -3), -6);
    EXPECT_EQ(CheckedDivide(6, 4), 1.5);
    EXPECT_EQ(CheckedSqrt(16), 4);
    EXPECT_EQ(CheckedSqrt(0), 0);
    EXPECT_EQ(CheckedLog(1), 0);
    EXPECT_EQ(CheckedExp(0), 1);
    EXPECT_EQ(CheckedPower(2, 10), 1024);
    EXPECT_EQ(CheckedPower(-8, 3), -512);
    EXPECT_EQ(CheckedPower(2, -1), 0.5);
    EXPECT_EQ(CheckedPower(0, 0), 1);
}

TEST(Checked, UnderflowIsZero) {
    EXPECT_EQ(CheckedExp(-800), 0);
    EXPECT_EQ(CheckedPower(10, -400), 0);
    EXPECT_EQ(CheckedMultiply(1e-200, 1e-200), 0);
}

TEST(Checked, WhatDoesNotExistFails) {
    EXPECT_EQ(FailureOf([] { CheckedAdd(kLargest, kLargest); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedSubtract(-kLargest, kLargest); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedMultiply(1e200, 1e200); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedDivide(1, 0); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { CheckedDivide(0, -0.0); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { CheckedDivide(1e300, 1e-300); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedSqrt(-1e-300); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { CheckedLog(0); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { CheckedLog(-1); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { CheckedExp(710); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedPower(10, 309); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedPower(0, -1); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] { CheckedPower(-8, 1.0 / 3.0); }), FailureCode::OutOfDomain);
}

TEST(Checked, NeitherInfinityNorNotANumberPasses) {
    EXPECT_EQ(FailureOf([] { Finite(-kInfinity); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { Finite(kNotANumber); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { CheckedSqrt(kInfinity); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CheckedLog(kNotANumber); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] { RoundToInteger(kNotANumber); }), FailureCode::OutOfDomain);
}

TEST(Checked, IntegersRoundToTheEvenNeighbour) {
    struct Row {
        double number;
        int rounded;
    };
    for (const Row& row : {Row{0.5, 0}, Row{1.5, 2}, Row{2.5, 2}, Row{-0.5, 0}, Row{-1.5, -2}, Row{2.4999, 2},
                           Row{2147483647.5 - 0.25, 2147483647}, Row{-2147483648.5, -2147483647 - 1}}) {
        EXPECT_EQ(RoundToInteger(row.number), row.rounded) << row.number;
    }
    EXPECT_EQ(FailureOf([] { RoundToInteger(2147483647.5); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { RoundToInteger(-2147483649.0); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { RoundToInteger(1e300); }), FailureCode::Overflow);
}

TEST(Checked, AFailureTellsItsKindAndDetail) {
    EXPECT_EQ(std::string(RuntimeFailure(FailureCode::SubscriptRange, "row 7").what()),
              "subscript out of range: row 7");
    EXPECT_EQ(std::string(RuntimeFailure(FailureCode::FileNotFound).what()), "file not found");
}

}  // namespace
}  // namespace tavrelo::numeric
