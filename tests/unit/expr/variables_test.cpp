#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

VariablePtr MakeVariable(const std::string& name, const text::Value& value) {
    auto variable = std::make_shared<CVariable>();
    variable->Name = name;
    variable->Value = value;
    return variable;
}

TEST(Variables, MadeByTheFormulaAndFoundInAnyCase) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("z+x");
    EXPECT_EQ(expression.VariablesCount(), 2);
    EXPECT_EQ(expression.Variable("X", false)->Name, "x");
    EXPECT_EQ(expression.Variable("x", false), expression.Variable("X", false));
    EXPECT_EQ(expression.Variable(1, false)->Name, "x");
    EXPECT_EQ(expression.Variable("2", false)->Name, "z");
}

TEST(Variables, WhatIsMissingIsNullOrMade) {
    CExpression expression(testing::kDegrees);
    EXPECT_EQ(expression.Variable("X", false), nullptr);
    EXPECT_EQ(expression.Variable(0, true), nullptr);
    EXPECT_EQ(expression.Variable(1, true), nullptr);
    EXPECT_EQ(expression.Variable(-1, false), nullptr);
    EXPECT_EQ(expression.Variable("1E300", false), nullptr);
    EXPECT_EQ(expression.Variable(std::string(400, '9'), false), nullptr);
    EXPECT_EQ(expression.VariablesCount(), 0);
    EXPECT_EQ(expression.Variable("velocidad", true)->Name, "velocidad");
    EXPECT_EQ(expression.VariablesCount(), 1);
}

TEST(Variables, StayInTheOrderOfTheirNames) {
    CExpression expression(testing::kDegrees);
    EXPECT_EQ(expression.AddVariable(MakeVariable("y", 1)), 1);
    EXPECT_EQ(expression.AddVariable(MakeVariable("Z", 2)), 2);
    EXPECT_EQ(expression.AddVariable(MakeVariable("X", 3)), 1);
    EXPECT_EQ(expression.AddVariable(MakeVariable("Y", 4)), 2);
    EXPECT_EQ(expression.VariablesCount(), 3);
    EXPECT_EQ(expression.Variable("y", false)->Name, "Y");
    EXPECT_EQ(expression.Variable("y", false)->Value, text::Value(4));
}

TEST(Variables, AFormulaKeepsTheObjectThatItWasParsedWith) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("X*2");
    expression.Variable("X", false)->Value = 5;
    expression.AddVariable(MakeVariable("X", 7));
    EXPECT_EQ(expression.Value().Text(), "10");
    expression.SetExpression("X*2");
    EXPECT_EQ(expression.Value().Text(), "14");
}

TEST(Variables, KeepTheirValuesFromFormulaToFormula) {
    CExpression expression(testing::kDegrees);
    expression.Evaluate("X+Y", std::vector<text::Value>{1, 2});
    expression.SetExpression("10*X+Y");
    EXPECT_EQ(expression.Value().Text(), "12");
}

TEST(Variables, AMistypedNameStaysAndShiftsTheArguments) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("A+1");
    EXPECT_EQ(expression.VariablesCount(), 1);
    EXPECT_NE(expression.Variable("A", false), nullptr);
    EXPECT_EQ(expression.Evaluate("X+1", std::vector<text::Value>{5}).Text(), "1");
    EXPECT_EQ(expression.Variable("A", false)->Value, text::Value(5));
}

TEST(Variables, MoveWithTheirExpression) {
    CExpression first(testing::kDegrees);
    first.SetExpression("X+\t007");
    first.SetExpression("X+007");
    CExpression second = std::move(first);
    EXPECT_EQ(second.Value(std::vector<text::Value>{1}).Text(), "8");
}

TEST(VariableList, FindsNamesOfAnyLengthWithoutRegardToCase) {
    VariableList list;
    const VariablePtr mass = list.Create("Masa");
    const VariablePtr x = list.Create("x");
    EXPECT_EQ(list.Find("MASA"), mass);
    EXPECT_EQ(list.Find("masa"), mass);
    EXPECT_EQ(list.Find("mas"), nullptr);
    EXPECT_EQ(list.Find("X"), x);
    EXPECT_EQ(list.Find("m"), nullptr);
}
}  // namespace
}  // namespace tavrelo::expr
