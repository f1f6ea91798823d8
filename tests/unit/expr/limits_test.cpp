// The fixed sizes of the piles and of the program, and formulas that fail while they are assigned.

#include <gtest/gtest.h>

#include <string>

#include "../failure_code.h"
#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

using numeric::FailureCode;
using testing::FailureOf;
using testing::ValueOfFormula;

std::string Repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

/// 2 * `ones` - 1 tokens.
std::string SumOfOnes(int ones) { return std::string("1").append(Repeated("+1", ones - 1)); }

std::string Nested(const std::string& open, int levels, const std::string& inner) {
    return Repeated(open, levels).append(inner).append(Repeated(")", levels));
}

TEST(Limits, HundredTokens) {
    EXPECT_EQ(ValueOfFormula(SumOfOnes(50)).Text(), "50");
    EXPECT_EQ(ValueOfFormula("-(" + SumOfOnes(50) + ")").Text(), "-50");
    EXPECT_EQ(FailureOf([] { ValueOfFormula(SumOfOnes(51)); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { ValueOfFormula(SumOfOnes(5000)); }), FailureCode::SubscriptRange);
}

TEST(Limits, ThirtyOpenOperatorsAboveTheBottom) {
    EXPECT_EQ(ValueOfFormula(Nested("(", 29, "2")).Text(), "2");
    EXPECT_EQ(ValueOfFormula(Nested("(", 30, "2")).Text(), "2");
    EXPECT_EQ(FailureOf([] { ValueOfFormula(Nested("(", 31, "2")); }), FailureCode::SubscriptRange);
    EXPECT_EQ(ValueOfFormula(Nested("ABS(", 15, "2")).Number(), 2);
    EXPECT_EQ(FailureOf([] { ValueOfFormula(Nested("ABS(", 15, "-2")); }), FailureCode::SubscriptRange);
    // The last minus becomes part of the number, but is first put on the pile.
    EXPECT_EQ(ValueOfFormula(Repeated("-", 30) + "2").Number(), 2);
    EXPECT_EQ(FailureOf([] { ValueOfFormula(Repeated("-", 31) + "2"); }), FailureCode::SubscriptRange);
    EXPECT_EQ(FailureOf([] { ValueOfFormula(std::string(10000, '(')); }), FailureCode::SubscriptRange);
}

TEST(Limits, ThirtyPendingOperands) {
    const std::string open =
        "BAR(1,2,";  // leaves two operands pending and takes two places of the operator pile
    EXPECT_EQ(ValueOfFormula(Nested(open, 14, "3+4")).Text(), "0");
    CExpression expression(testing::kDegrees);
    expression.SetExpression(Nested(open, 15, "3"));
    EXPECT_EQ(expression.ErrorCode(), 0);
    EXPECT_EQ(FailureOf([&] { expression.Value(); }), FailureCode::SubscriptRange);
}

TEST(Limits, WhatFailsWhileItIsAssignedCannotBeEvaluated) {
    struct Row {
        std::string formula;
        FailureCode code;
    };
    for (const Row& row :
         {Row{SumOfOnes(51), FailureCode::SubscriptRange}, Row{"2+-1E", FailureCode::TypeMismatch},
          Row{"2+1.5E400", FailureCode::Overflow}, Row{"2+-1E400", FailureCode::Overflow},
          Row{std::string(400, '9') + ".", FailureCode::Overflow}}) {
        CExpression expression(testing::kDegrees);
        expression.SetExpression("X+1");
        EXPECT_EQ(FailureOf([&] { expression.SetExpression(row.formula); }), row.code) << row.formula;
        EXPECT_EQ(expression.Expression(), row.formula);
        EXPECT_TRUE(expression.Value().IsEmpty());
        EXPECT_EQ(expression.EvaluateNumber(), 0);
        EXPECT_EQ(expression.RPNExpression(), "");
        expression.SetExpression("2+3");
        EXPECT_EQ(expression.Value().Text(), "5");
    }
}

}  // namespace
}  // namespace tavrelo::expr
