// What refused formulas report: code, message and position.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

struct RefusedRow {
    std::string formula;
    int code;
    std::string description;
    int position;
};

void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.formula; }

const std::string kSyntax = "Error de sintaxis";
const std::string kEnd = "Error de sintaxis: No se espera fin de la expresión";
const std::string kSymbol = "Error de sintaxis: Símbolo desconocido";
const std::string kParenthesis = "Error de sintaxis: Falta paréntesis";
const std::string kName = "Símbolo o función desconocido";
const std::string kOperator = "Operador desconocido";
const std::string kArguments = "Número de argumentos incorrecto para ";

class RefusedFormula : public ::testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedFormula, Reports) {
    const RefusedRow& row = GetParam();
    CExpression expression(testing::kDegrees);
    expression.SetExpression(row.formula);
    EXPECT_EQ(expression.ErrorCode(), row.code) << row.formula;
    EXPECT_EQ(expression.ErrorDescription(), row.description) << row.formula;
    EXPECT_EQ(expression.ErrorPos(), row.position) << row.formula;
    EXPECT_TRUE(expression.Value().IsEmpty());
    EXPECT_EQ(expression.RPNExpression(), "");
}

INSTANTIATE_TEST_SUITE_P(
    OperandIsDue, RefusedFormula,
    ::testing::Values(RefusedRow{"", 1, kEnd, 1}, RefusedRow{" ", 1, kEnd, 2}, RefusedRow{"3 +", 1, kEnd, 4},
                      RefusedRow{"-", 1, kEnd, 2}, RefusedRow{"+", 1, kEnd, 2}, RefusedRow{"1 <", 1, kEnd, 4},
                      RefusedRow{"NOT", 1, kEnd, 4}, RefusedRow{"(", 1, kEnd, 2},
                      RefusedRow{std::string("2+\0"
                                             "3",
                                             4),
                                 1, kEnd, 3},
                      RefusedRow{"SEN()", 1, kSymbol, 5}, RefusedRow{"()", 1, kSymbol, 2},
                      RefusedRow{")(", 1, kSymbol, 1}, RefusedRow{"MIN(,1)", 1, kSymbol, 5},
                      RefusedRow{"MIN(1,)", 1, kSymbol, 7}, RefusedRow{"\"2\"", 1, kSymbol, 1},
                      RefusedRow{"=2", 1, kSymbol, 1}, RefusedRow{"2**3", 1, kSymbol, 3},
                      RefusedRow{"\t2", 1, kSymbol, 1}, RefusedRow{"_X", 1, kSymbol, 1},
                      RefusedRow{"ñ", 1, kSymbol, 1}, RefusedRow{"2+π", 1, kSymbol, 3},
                      RefusedRow{"\xFF", 1, kSymbol, 1}, RefusedRow{"{2}", 1, kSymbol, 1}));

INSTANTIATE_TEST_SUITE_P(
    OperatorIsDue, RefusedFormula,
    ::testing::Values(RefusedRow{"2X", 3, kOperator, 2}, RefusedRow{"1 2", 3, kOperator, 3},
                      RefusedRow{"1..2", 3, kOperator, 3}, RefusedRow{"1.2.3", 3, kOperator, 4},
                      RefusedRow{"1E5E5", 3, kOperator, 4}, RefusedRow{"2PI", 3, kOperator, 2},
                      RefusedRow{"2EXP(1)", 3, kOperator, 3}, RefusedRow{"2(3)", 3, kOperator, 2},
                      RefusedRow{"PI(1)", 3, kOperator, 3}, RefusedRow{"PI( )", 3, kOperator, 3},
                      RefusedRow{"RADS(1)", 3, kOperator, 5}, RefusedRow{"2;3", 3, kOperator, 2},
                      RefusedRow{"2:3", 3, kOperator, 2}, RefusedRow{"X Y", 3, kOperator, 3},
                      RefusedRow{"2\t+3", 3, kOperator, 2}, RefusedRow{"2\n", 3, kOperator, 2},
                      RefusedRow{"2\u00A0+3", 3, kOperator, 2}, RefusedRow{"2é", 3, kOperator, 2},
                      RefusedRow{"2!", 3, kOperator, 2}, RefusedRow{"2\xC3", 3, kOperator, 2},
                      RefusedRow{"2 NOT 3", 3, kOperator, 3}));

// A word operator stands apart: a blank or ")" before it, a blank or "(" behind it.
INSTANTIATE_TEST_SUITE_P(
    WordOperators, RefusedFormula,
    ::testing::Values(RefusedRow{"2 MOD3", 1, kSyntax, 3}, RefusedRow{"7 MOD-3", 1, kSyntax, 3},
                      RefusedRow{"7 MOD", 1, kSyntax, 3}, RefusedRow{"7MOD 3", 1, kSyntax, 2},
                      RefusedRow{"2 ORX 3", 1, kSyntax, 3}, RefusedRow{"1 AND", 1, kSyntax, 3},
                      RefusedRow{"1 XOR\t2", 1, kSyntax, 3}));

INSTANTIATE_TEST_SUITE_P(Parentheses, RefusedFormula,
                         ::testing::Values(RefusedRow{"(2", 1, kSyntax, 3},
                                           RefusedRow{"SEN(30", 1, kSyntax, 7},
                                           RefusedRow{"2)", 1, kSyntax, 2}, RefusedRow{"(2))", 1, kSyntax, 4},
                                           RefusedRow{"SEN 30", 1, kParenthesis, 1},
                                           RefusedRow{"SEN", 1, kParenthesis, 1},
                                           RefusedRow{"2+LOG10 5", 1, kParenthesis, 3},
                                           RefusedRow{"SEN[30]", 1, kParenthesis, 1}));

INSTANTIATE_TEST_SUITE_P(Names, RefusedFormula,
                         ::testing::Values(RefusedRow{"A+1", 2, kName, 1}, RefusedRow{"X1", 2, kName, 1},
                                           RefusedRow{"2+t", 2, kName, 3}, RefusedRow{"SEÑ(1)", 2, kName, 1},
                                           RefusedRow{"NOT0", 2, kName, 1},
                                           RefusedRow{"SIN(30)", 2, kName, 1},
                                           RefusedRow{"COS30", 2, kName, 1}, RefusedRow{"R2(4)", 2, kName, 1},
                                           RefusedRow{"PI2", 2, kName, 1}, RefusedRow{"X_", 2, kName, 1},
                                           RefusedRow{"XY", 2, kName, 1}, RefusedRow{"E5", 2, kName, 1},
                                           RefusedRow{"ABCDEFGHIJK(1)", 2, kName, 1},
                                           RefusedRow{std::string(10000, 'X'), 2, kName, 1}));

// The name is that of what stands below the open parenthesis.
INSTANTIATE_TEST_SUITE_P(ArgumentCounts, RefusedFormula,
                         ::testing::Values(RefusedRow{"MIN(1)", 4, kArguments + "MIN", 6},
                                           RefusedRow{"MIN(1,2,3)", 4, kArguments + "MIN", 8},
                                           RefusedRow{"SEN(1,2)", 4, kArguments + "SEN", 6},
                                           RefusedRow{"IIF(1,2)", 4, kArguments + "IIF", 8},
                                           RefusedRow{"min(1)", 4, kArguments + "MIN", 6},
                                           RefusedRow{"MIN((1,2),3)", 4, kArguments + "(", 7},
                                           RefusedRow{"1+(2,3)", 4, kArguments + "+", 5},
                                           RefusedRow{"-(2,3)", 4, kArguments + "-", 4},
                                           RefusedRow{"(1,2)", 4, kArguments, 3},
                                           RefusedRow{"1,2", 4, kArguments, 2}));

TEST(ParseError, ASuccessHasNone) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("2+");
    expression.SetExpression("2+3");
    EXPECT_EQ(expression.ErrorCode(), 0);
    EXPECT_EQ(expression.ErrorDescription(), "");
    EXPECT_EQ(expression.ErrorPos(), 0);
}

TEST(ParseError, ClearingItMakesNothingEvaluable) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("2+3)");
    expression.ClearError();
    EXPECT_EQ(expression.ErrorCode(), 0);
    EXPECT_EQ(expression.ErrorDescription(), "");
    EXPECT_EQ(expression.ErrorPos(), 0);
    EXPECT_TRUE(expression.Value().IsEmpty());
    EXPECT_EQ(expression.RPNExpression(), "");
    EXPECT_EQ(expression.Expression(), "2+3)");
}

TEST(ParseError, AVariableThatMayNotBeMadeIsNamed) {
    CExpression expression(testing::kDegrees);
    expression.AutoCreateVariables = false;
    expression.SetExpression("x+1");
    EXPECT_EQ(expression.ErrorCode(), 2);
    EXPECT_EQ(expression.ErrorDescription(), kName + "x");
    // A name that can be no variable is told first, without itself.
    expression.SetExpression("A+1");
    EXPECT_EQ(expression.ErrorDescription(), kName);
    expression.Variable("X", true);
    expression.SetExpression("x+1");
    EXPECT_EQ(expression.ErrorCode(), 0);
}

}  // namespace
}  // namespace tavrelo::expr
