#include "expr/postfix.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "text/number_text.h"

namespace tavrelo::expr {
namespace {

struct LineRow {
    std::string line;
    std::string shown;
};

void PrintTo(const LineRow& row, std::ostream* out) { *out << row.line; }

class PostfixLine : public ::testing::TestWithParam<LineRow> {};

TEST_P(PostfixLine, Shows) {
    const PostfixResult result = EvalRPN(GetParam().line);
    ASSERT_TRUE(result.value) << GetParam().line;
    EXPECT_EQ(text::NumberToText(*result.value), GetParam().shown) << GetParam().line;
    EXPECT_EQ(result.message, "");
    EXPECT_FALSE(result.box);
}

INSTANTIATE_TEST_SUITE_P(
    Operators, PostfixLine,
    ::testing::Values(LineRow{"3 4 +", "7"}, LineRow{"  3   4 +  ", "7"}, LineRow{"3 4 -", "-1"},
                      LineRow{"3 -4 -", "7"}, LineRow{"3 4 *", "12"}, LineRow{"3 4 m", "12"},
                      LineRow{"3 4 /", "0.75"}, LineRow{"3 4 d", "0.75"}, LineRow{"3 4 coc", "0.75"},
                      LineRow{"2 10 ^", "1024"}, LineRow{"2 10 ñ", "1024"}, LineRow{"2 10 Ñ", "1024"},
                      LineRow{"7 2 \\", "3"}, LineRow{"7 2 de", "3"}, LineRow{"17 5 mod", "2"},
                      LineRow{"1 2 3 * +", "7"}, LineRow{"3 2 ^ 4 2 ^ + r", "5"}, LineRow{"007", "7"},
                      LineRow{"1.5E+2", "150"}, LineRow{"-. 3 +", "3"}, LineRow{"-3", "-3"}));

INSTANTIATE_TEST_SUITE_P(
    Functions, PostfixLine,
    ::testing::Values(
        LineRow{"pi", "3.14159265358979"}, LineRow{"PI", "3.14159265358979"}, LineRow{"16 r", "4"},
        LineRow{"16 r2", "4"}, LineRow{"27 r3", "3"}, LineRow{"1 ln", "0"}, LineRow{"1000 log10", "3"},
        LineRow{"0 exp", "1"}, LineRow{"30 sen", "0.5"}, LineRow{"30 SEN", "0.5"}, LineRow{"60 cos", "0.5"},
        LineRow{"45 tan", "1"}, LineRow{"1 asen", "90"}, LineRow{"0.5 asen", "30"}, LineRow{"1 acos", "180"},
        LineRow{"-1 acos", "-180"}, LineRow{"0 acos", "90"}, LineRow{"1 atan", "45"},
        LineRow{"90 30 sese", "2"}, LineRow{"30 60 seco", "1"}, LineRow{"60 30 cose", "1"},
        LineRow{"0 60 coco", "2"}, LineRow{"0 5 atan2", "90"}, LineRow{"5 0 atan2", "0"},
        // the hyperbolic functions have their names exchanged; Python: math.cosh(1), math.sinh(1)
        LineRow{"1 senh", "1.54308063481524"}, LineRow{"1 cosh", "1.1752011936438"}));

class RefusedLine : public ::testing::TestWithParam<std::string> {};

TEST_P(RefusedLine, OpensABox) {
    const PostfixResult result = EvalRPN(GetParam());
    EXPECT_FALSE(result.value) << GetParam();
    EXPECT_EQ(result.message, "Error en la expresión NPI.");
    ASSERT_TRUE(result.box);
    EXPECT_EQ(result.box->title, "Tavrelo");
    EXPECT_EQ(result.box->text, "Error en la expresión.");
}

INSTANTIATE_TEST_SUITE_P(Postfix, RefusedLine,
                         ::testing::Values("", "   ", "3 4", "3 +", "+", "sen", "3 4 + 5", "3 4+", "3 4 foo",
                                           "x", "1e5", "1,5", "1E999", "3\t4 +", "3 4 +\n", "stp", "1 abs",
                                           "ñ", std::string("3 4 +\0", 6), "3 4 \xFF", "r4"));

class StrangeLine : public ::testing::TestWithParam<std::string> {};

TEST_P(StrangeLine, OpensABoxOfItsOwn) {
    const PostfixResult result = EvalRPN(GetParam());
    EXPECT_FALSE(result.value) << GetParam();
    EXPECT_EQ(result.message, "Error en la expresión NPI.");
    ASSERT_TRUE(result.box);
    EXPECT_EQ(result.box->title, "Fis");
    EXPECT_EQ(result.box->text, "Literal extraña en la expresión (Estás en notación polaca inversa).");
}

INSTANTIATE_TEST_SUITE_P(Postfix, StrangeLine,
                         ::testing::Values("3 (4", "3 4 +!", "(", "3 4 + )", "#", "$", "%", "&", "=", "?",
                                           "¡", "´", "]", "[", "}", "{", "_", ";", ">", "<", "|", "°",
                                           "foo("));

TEST(Postfix, WhatFailsInTheMathematicsOpensNoBox) {
    for (const std::string line : {"1 0 /", "0 ln", "-1 r", "-8 r3", "2 asen", "10 309 ^", "800 senh",
                                   "5 0 mod", "5 0.4 de", "1 0 / (", "0 -1 ^"}) {
        const PostfixResult result = EvalRPN(line);
        EXPECT_FALSE(result.value) << line;
        EXPECT_EQ(result.message, "Error en la expresión.");
        EXPECT_FALSE(result.box);
    }
    EXPECT_EQ(EvalRPN(std::string(400, '9')).message, "Error en la expresión.");
}

TEST(Postfix, ALongLineIsNoBurden) {
    std::string line = "1";
    for (int i = 0; i < 100000; ++i) {
        line += " 1 +";
    }
    EXPECT_EQ(EvalRPN(line).value, 100001);
}

}  // namespace
}  // namespace tavrelo::expr
