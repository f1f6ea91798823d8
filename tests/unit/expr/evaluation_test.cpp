// What formulas are worth: precedence, functions, the form of the results and what has no result.

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "../failure_code.h"
#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

using numeric::FailureCode;
using testing::FailureOf;
using testing::ValueOfFormula;

struct FormulaRow {
    std::string formula;
    std::string shown;
};

void PrintTo(const FormulaRow& row, std::ostream* out) { *out << row.formula; }

class Formula : public ::testing::TestWithParam<FormulaRow> {};

TEST_P(Formula, Shows) {
    EXPECT_EQ(ValueOfFormula(GetParam().formula).Text(), GetParam().shown) << GetParam().formula;
}

INSTANTIATE_TEST_SUITE_P(
    Arithmetic, Formula,
    ::testing::Values(FormulaRow{"2+3*4", "14"}, FormulaRow{"(2+3)*4", "20"}, FormulaRow{"8/4/2", "1"},
                      FormulaRow{"8-4-2", "2"}, FormulaRow{"2*3^2", "18"}, FormulaRow{"2+3-4*5/2", "-5"},
                      FormulaRow{"0.1+0.2", "0.3"}, FormulaRow{"1/3", "0.333333333333333"},
                      FormulaRow{" 2 + 3 ", "5"}, FormulaRow{"+ + 3", "3"}, FormulaRow{"2+ +3", "5"},
                      FormulaRow{"2^3^2", "64"}, FormulaRow{"2^-1", "0.5"}, FormulaRow{"10^-400", "0"},
                      FormulaRow{"0^0", "1"}, FormulaRow{"(-8)^3", "-512"}, FormulaRow{"-0", "0"},
                      FormulaRow{"0*(-1)", "0"}, FormulaRow{"((((2))))", "2"},
                      FormulaRow{"2.5E+3/2", "1250"}));

// A minus right before a number belongs to it; any other minus binds less than the power.
INSTANTIATE_TEST_SUITE_P(
    Minus, Formula,
    ::testing::Values(FormulaRow{"-2^2", "4"}, FormulaRow{"-(2)^2", "-4"}, FormulaRow{"- 2^2", "4"},
                      FormulaRow{"-+2^2", "4"}, FormulaRow{"--2^2", "-4"}, FormulaRow{"2--2^2", "-2"},
                      FormulaRow{"2*-3^2", "18"}, FormulaRow{"-PI^2", "-9.86960440108934"},
                      FormulaRow{"2^-(2^2)", "0.0625"}, FormulaRow{"-2-2", "-4"}, FormulaRow{"2---2", "0"}));

INSTANTIATE_TEST_SUITE_P(
    IntegerOperators, Formula,
    ::testing::Values(FormulaRow{"7\\2", "3"}, FormulaRow{"-7\\2", "-3"}, FormulaRow{"7\\-2", "-3"},
                      FormulaRow{"7\\2*2", "1"}, FormulaRow{"2.5\\1", "2"}, FormulaRow{"3.5\\1", "4"},
                      FormulaRow{"17 MOD 5*2", "7"}, FormulaRow{"17 MOD 10\\3", "2"},
                      FormulaRow{"-7 MOD 3", "-1"}, FormulaRow{"7 MOD -3", "1"}, FormulaRow{"(7)MOD(3)", "1"},
                      FormulaRow{"2 mod 3", "2"}, FormulaRow{"6 AND 3", "2"}, FormulaRow{"6 OR 3", "7"},
                      FormulaRow{"6 XOR 3", "5"}, FormulaRow{"NOT 0", "-1"}, FormulaRow{"NOT.5", "-1"},
                      FormulaRow{"NOT -1", "0"}, FormulaRow{"2*NOT 1+3", "-10"}, FormulaRow{"NOT 1 = 1", "0"},
                      FormulaRow{"2.5 OR 0", "2"}, FormulaRow{"1 OR 2 AND 4", "1"},
                      FormulaRow{"-2147483648 MOD -1", "0"}, FormulaRow{"2147483647\\1", "2147483647"},
                      FormulaRow{"5 xOr 1", "4"}));

// True is -1. Two literals without a point compare as texts.
INSTANTIATE_TEST_SUITE_P(
    Comparison, Formula,
    ::testing::Values(FormulaRow{"1<2", "-1"}, FormulaRow{"2.<1.", "0"}, FormulaRow{"2.<>1.", "-1"},
                      FormulaRow{"2.>=2.", "-1"}, FormulaRow{"2.<=2.", "-1"}, FormulaRow{"2.>2.", "0"},
                      FormulaRow{"10<9", "-1"}, FormulaRow{"(10)<(9)", "-1"}, FormulaRow{"10.<9", "0"},
                      FormulaRow{"10<9.", "0"}, FormulaRow{"10+0<9", "0"}, FormulaRow{"2=02", "0"},
                      FormulaRow{"2.=02", "-1"}, FormulaRow{"1E1=10", "0"}, FormulaRow{"1E1=10.", "-1"},
                      FormulaRow{"-2=-02", "-1"}, FormulaRow{"1+2=3", "-1"}, FormulaRow{"1E=1E", "-1"},
                      FormulaRow{"1E400<2", "-1"}));

// A literal without a point stays the text that it is until something computes with it.
INSTANTIATE_TEST_SUITE_P(
    Literals, Formula,
    ::testing::Values(FormulaRow{"007", "007"}, FormulaRow{"+007", "007"}, FormulaRow{"(007)", "007"},
                      FormulaRow{"-007", "-7"}, FormulaRow{"007+0", "7"}, FormulaRow{"1E5", "1E5"},
                      FormulaRow{"1e5", "1e5"}, FormulaRow{"1e5+0", "100000"}, FormulaRow{"1D3", "1D3"},
                      FormulaRow{"1D3+0", "1000"}, FormulaRow{"1E400", "1E400"}, FormulaRow{"1E", "1E"},
                      FormulaRow{"2D", "2D"}, FormulaRow{std::string(400, '7'), std::string(400, '7')},
                      FormulaRow{"007.", "7"}, FormulaRow{"1.", "1"}, FormulaRow{".", "0"},
                      FormulaRow{".5", "0.5"}, FormulaRow{"1.E", "1"}, FormulaRow{"1.5E+", "1.5"},
                      FormulaRow{".E5", "0"}, FormulaRow{"1.5D3", "1500"}, FormulaRow{"1.5e-3", "0.0015"},
                      FormulaRow{"-.", "0"}, FormulaRow{"1E-400+0", "0"},
                      FormulaRow{std::string("2\0+3", 4), "2"}));

INSTANTIATE_TEST_SUITE_P(Constants, Formula,
                         ::testing::Values(FormulaRow{"PI", "3.14159265358979"},
                                           FormulaRow{"PI()", "3.14159265358979"},
                                           FormulaRow{"pi ()+0", "3.14159265358979"},
                                           FormulaRow{"RADS", "0.0174532925199433"},
                                           FormulaRow{"RADS()*180", "3.14159265358979"}));

INSTANTIATE_TEST_SUITE_P(
    OneArgument, Formula,
    ::testing::Values(FormulaRow{"ABS(-3)", "3"}, FormulaRow{"abs(007)", "7"},
                      FormulaRow{"GAR(180)", "3.14159265358979"}, FormulaRow{"RAG(PI)", "180"},
                      FormulaRow{"ENT(-2.5)", "-3"}, FormulaRow{"ENT(2.9)", "2"},
                      FormulaRow{"FIX(-2.5)", "-2"}, FormulaRow{"FIX(-0.5)", "0"},
                      FormulaRow{"SGN(-2.5)", "-1"}, FormulaRow{"SGN(0)", "0"}, FormulaRow{"SGN(7)", "1"},
                      FormulaRow{"R(16)", "4"}, FormulaRow{"R3(27)", "3"}, FormulaRow{"R3(0)", "0"},
                      FormulaRow{"LN(1)", "0"}, FormulaRow{"LN(EXP(2))", "2"}, FormulaRow{"LOG10(1000)", "3"},
                      FormulaRow{"EXP(0)", "1"}, FormulaRow{"EXP(-800)", "0"},
                      // Python: math.sinh(1), math.cosh(1)
                      FormulaRow{"SENH(1)", "1.1752011936438"}, FormulaRow{"COSH(1)", "1.54308063481524"},
                      FormulaRow{"SEN (30)", "0.5"}, FormulaRow{"SEN( 30 )", "0.5"},
                      FormulaRow{"SEN(30)^2", "0.25"}, FormulaRow{"2*SEN(30)", "1"},
                      FormulaRow{"SEN(ABS(-30))", "0.5"}));

INSTANTIATE_TEST_SUITE_P(
    Angles, Formula,
    ::testing::Values(FormulaRow{"SEN(-30)", "-0.5"}, FormulaRow{"COS(60)", "0.5"},
                      FormulaRow{"COS(180)", "-1"}, FormulaRow{"TAN(45)", "1"}, FormulaRow{"COT(45)", "1"},
                      FormulaRow{"CSC(30)", "2"}, FormulaRow{"SEC(60)", "2"}, FormulaRow{"ATAN(1)", "45"},
                      FormulaRow{"ASEN(1)", "90"}, FormulaRow{"ASEN(0.5)", "30"}, FormulaRow{"ACOS(0)", "90"},
                      FormulaRow{"ACOS(0.5)", "60"}, FormulaRow{"ACOS(1)", "180"},
                      FormulaRow{"ACOS(-1)", "-180"}, FormulaRow{"ACOT(1)", "45"},
                      FormulaRow{"ACOT(0)", "90"}, FormulaRow{"ACSC(2)", "30"}, FormulaRow{"ASEC(2)", "60"},
                      FormulaRow{"ASEC(1)", "180"}, FormulaRow{"ATAN2(1,0)", "0"},
                      FormulaRow{"ATAN2(0,1)", "90"}, FormulaRow{"ATAN2(-1,-1)", "-135"},
                      FormulaRow{"ATAN2(0,0)", "0"}, FormulaRow{"ATAN2(-5,-0.0000001)", "180"},
                      FormulaRow{"SESE(90,30)", "2"}, FormulaRow{"SECO(30,60)", "1"},
                      FormulaRow{"COSE(60,30)", "1"}, FormulaRow{"COCO(0,60)", "2"}));

INSTANTIATE_TEST_SUITE_P(MoreArguments, Formula,
                         ::testing::Values(FormulaRow{"MIN(10.,9)", "9"}, FormulaRow{"MAX(10.,9)", "10"},
                                           FormulaRow{"MIN(10,9)", "10"}, FormulaRow{"MAX(10,9)", "9"},
                                           FormulaRow{"MIN(2.0,02)", "02"}, FormulaRow{"MAX(02,2.0)", "2"},
                                           FormulaRow{"COC(3,4)", "0.75"}, FormulaRow{"HIPO(3,4)", "5"},
                                           FormulaRow{"CATE(5,3)", "4"}, FormulaRow{"CATE(3,5)", "4"},
                                           FormulaRow{"CATE(10,9.)-R(19)", "0"}, FormulaRow{"CATE(3,3)", "0"},
                                           FormulaRow{"IIF(1,2,3)", "2"}, FormulaRow{"IIF(0,2,3)", "3"},
                                           FormulaRow{"IIF(-0.5,2,3)", "2"}, FormulaRow{"IIF(10<9,1,2)", "1"},
                                           FormulaRow{"IIF(10.<9,1,2)", "2"},
                                           FormulaRow{"IIF(2.>1,007,5)", "007"},
                                           FormulaRow{"MIN(MAX(1.,2.),3.)", "2"}));

// Steps are compared at twelve decimals: 0.1+0.2 is above 0.3 in doubles.
INSTANTIATE_TEST_SUITE_P(
    Steps, Formula,
    ::testing::Values(FormulaRow{"STP(2,5.,3.)", "4"}, FormulaRow{"STP(2,2.,3.)", "0"},
                      FormulaRow{"STP(0,3.,3.)", "1"}, FormulaRow{"STP(2,10,9)", "1"},
                      FormulaRow{"STP(0,0.3,0.1+0.2)", "1"}, FormulaRow{"STP(0,0.3,0.1+0.2+1E-11)", "0"},
                      FormulaRow{"BAR(2,1,3)", "1"}, FormulaRow{"BAR(1,1,3)", "1"},
                      FormulaRow{"BAR(3,1,3)", "1"}, FormulaRow{"BAR(4,1,3)", "0"},
                      FormulaRow{"BAR(0,1,3)", "0"}, FormulaRow{"BAR(10,9,11)", "1"},
                      FormulaRow{"BAR(0.1+0.2,0,0.3)", "1"}, FormulaRow{"BAR(1E15,0,1E16)", "1"},
                      FormulaRow{"STP1(0,3.,2.)", "1"}, FormulaRow{"STP1(0,2.,2.)", "1"},
                      FormulaRow{"STP1(0,1.,2.)", "0"}, FormulaRow{"STP1(0,10,9)", "0"},
                      // The first argument stays behind and takes the place of the next operand.
                      FormulaRow{"STP1(7,2.,1.)", "1"}, FormulaRow{"5+STP1(7,2.,1.)", "8"},
                      FormulaRow{"STP1(7,2.,1.)+5", "6"}));

TEST(Evaluation, VariablesInTheOrderOfTheirNames) {
    EXPECT_EQ(ValueOfFormula("Y*10+X", {1, 2}).Text(), "21");
    EXPECT_EQ(ValueOfFormula("z*100+y*10+x", {1, 2, 3}).Text(), "321");
    EXPECT_EQ(ValueOfFormula("Z-Y", {1, 2}).Text(), "1");
    EXPECT_EQ(ValueOfFormula("X", {1, 2, 3}).Text(), "1");
    EXPECT_EQ(ValueOfFormula("-X^2", {2}).Text(), "-4");
    EXPECT_EQ(ValueOfFormula("2^-X^2", {2}).Text(), "0.0625");
    EXPECT_EQ(ValueOfFormula("X*STP1(0,X,3.)", {5}).Text(), "0");
    EXPECT_EQ(ValueOfFormula("STP1(0,X,3.)*X", {5}).Text(), "5");
}

TEST(Evaluation, AVariableWithoutValueIsNothing) {
    EXPECT_EQ(ValueOfFormula("X"), text::Value());
    EXPECT_EQ(ValueOfFormula("X+1").Text(), "1");
    EXPECT_EQ(ValueOfFormula("X=0"), text::Value(-1));
    EXPECT_EQ(ValueOfFormula("MIN(X,5)"), text::Value());
}

TEST(Evaluation, ATextInAVariableComparesAsText) {
    EXPECT_EQ(ValueOfFormula("IIF(X<9,1,2)", {"10"}).Text(), "1");
    EXPECT_EQ(ValueOfFormula("IIF(X<9,1,2)", {10}).Text(), "2");
    EXPECT_EQ(ValueOfFormula("X+1", {"10"}).Text(), "11");
    EXPECT_EQ(ValueOfFormula("X", {"F"}).Text(), "F");
    EXPECT_EQ(FailureOf([] { ValueOfFormula("X+1", {"F"}); }), FailureCode::TypeMismatch);
}

TEST(Evaluation, RightAnglesAreNotExact) {
    EXPECT_GT(std::abs(ValueOfFormula("TAN(90)").Number()), 1e14);
    EXPECT_GT(std::abs(ValueOfFormula("SEC(90)").Number()), 1e14);
    EXPECT_GT(std::abs(ValueOfFormula("COT(180)").Number()), 1e14);
    EXPECT_LT(std::abs(ValueOfFormula("COS(90)").Number()), 1e-14);
}

struct FailureRow {
    std::string formula;
    FailureCode code;
};

void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.formula; }

class FailingFormula : public ::testing::TestWithParam<FailureRow> {};

TEST_P(FailingFormula, FailsWhenEvaluatedAndTheObjectStaysUsable) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression(GetParam().formula);
    EXPECT_EQ(expression.ErrorCode(), 0);
    EXPECT_EQ(FailureOf([&] { expression.Value(); }), GetParam().code) << GetParam().formula;
    EXPECT_EQ(FailureOf([&] { expression.EvaluateNumber(); }), GetParam().code);
    expression.RaiseErrors = false;
    EXPECT_EQ(expression.Value(), text::Value(""));
    expression.SetExpression("2+3");
    EXPECT_EQ(expression.Value().Text(), "5");
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FailingFormula,
    ::testing::Values(
        FailureRow{"1/0", FailureCode::DivisionByZero}, FailureRow{"0/0", FailureCode::DivisionByZero},
        FailureRow{"1/-0", FailureCode::DivisionByZero}, FailureRow{"COC(1,0)", FailureCode::DivisionByZero},
        FailureRow{"5\\0", FailureCode::DivisionByZero}, FailureRow{"5\\0.4", FailureCode::DivisionByZero},
        FailureRow{"5 MOD 0", FailureCode::DivisionByZero}, FailureRow{"0^-1", FailureCode::DivisionByZero},
        FailureRow{"COT(0)", FailureCode::DivisionByZero}, FailureRow{"CSC(0)", FailureCode::DivisionByZero},
        FailureRow{"ACSC(0)", FailureCode::DivisionByZero},
        FailureRow{"SESE(30,0)", FailureCode::DivisionByZero},
        FailureRow{"IIF(1,2,1/0)", FailureCode::DivisionByZero},
        FailureRow{"LN(0)", FailureCode::OutOfDomain}, FailureRow{"LN(-1)", FailureCode::OutOfDomain},
        FailureRow{"LOG10(0)", FailureCode::OutOfDomain}, FailureRow{"R(-1)", FailureCode::OutOfDomain},
        FailureRow{"R3(-8)", FailureCode::OutOfDomain}, FailureRow{"(-8)^(1/3)", FailureCode::OutOfDomain},
        FailureRow{"ASEN(1.1)", FailureCode::OutOfDomain}, FailureRow{"ACOS(-2)", FailureCode::OutOfDomain},
        FailureRow{"ASEC(0.5)", FailureCode::OutOfDomain}, FailureRow{"CATE(-5,3)", FailureCode::OutOfDomain},
        FailureRow{"10^309", FailureCode::Overflow}, FailureRow{"1E308*10", FailureCode::Overflow},
        FailureRow{"1E308+1E308", FailureCode::Overflow}, FailureRow{"-1E308-1E308", FailureCode::Overflow},
        FailureRow{"EXP(1000)", FailureCode::Overflow}, FailureRow{"SENH(1000)", FailureCode::Overflow},
        FailureRow{"HIPO(1E200,1E200)", FailureCode::Overflow},
        FailureRow{"CATE(1E200,1E200)", FailureCode::Overflow},
        FailureRow{"RAG(1E308)", FailureCode::Overflow}, FailureRow{"2147483648\\1", FailureCode::Overflow},
        FailureRow{"-2147483648\\-1", FailureCode::Overflow}, FailureRow{"1E10 AND 1", FailureCode::Overflow},
        FailureRow{"NOT 1E10", FailureCode::Overflow},
        FailureRow{"STP(1000,1E10,0)", FailureCode::Overflow}));

INSTANTIATE_TEST_SUITE_P(Texts, FailingFormula,
                         ::testing::Values(FailureRow{"1E*2", FailureCode::TypeMismatch},
                                           FailureRow{"2*1D", FailureCode::TypeMismatch},
                                           FailureRow{"R(1E)", FailureCode::TypeMismatch},
                                           FailureRow{"0+1E", FailureCode::TypeMismatch},
                                           FailureRow{"1E=1.", FailureCode::TypeMismatch},
                                           FailureRow{"IIF(1E,2,3)", FailureCode::TypeMismatch},
                                           FailureRow{"BAR(1,1E,3)", FailureCode::TypeMismatch},
                                           FailureRow{"1E400+0", FailureCode::Overflow},
                                           FailureRow{"1E400=1.", FailureCode::Overflow}));

TEST(Evaluation, TheAngleFactorIsReadAtEachEvaluation) {
    double factor = testing::kDegrees;
    CExpression expression(factor);
    expression.SetExpression("SEN(X)");
    EXPECT_NEAR(expression.EvaluateNumber(std::vector<double>{90}), 1, 1e-14);
    factor = testing::kRadians;
    EXPECT_NEAR(expression.EvaluateNumber(std::vector<double>{numeric::kHalfPi}), 1, 1e-14);
    // Inverse functions answer in degrees all the same.
    expression.SetExpression("ATAN(1)");
    EXPECT_EQ(expression.EvaluateNumber(), 45);
}

TEST(Evaluation, NumbersForSamplers) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("1e5");
    EXPECT_EQ(expression.EvaluateNumber(), 100000);
    expression.SetExpression("X*Y");
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{2, 3, 4}), 6);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{5}), 15);
    EXPECT_EQ(expression.Value().Text(), "15");
    expression.SetExpression("X+");
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{5}), 0);
}

TEST(Evaluation, EvaluateAssignsTheFormula) {
    CExpression expression(testing::kDegrees);
    EXPECT_EQ(expression.Evaluate("X+1", std::vector<text::Value>{2}).Text(), "3");
    EXPECT_EQ(expression.Expression(), "X+1");
    EXPECT_TRUE(expression.Evaluate("X+", std::vector<text::Value>{2}).IsEmpty());
    EXPECT_TRUE(expression.Evaluate("", {}).IsEmpty());
}

}  // namespace
}  // namespace tavrelo::expr
