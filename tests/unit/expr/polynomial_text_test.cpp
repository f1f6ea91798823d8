#include "expr/polynomial_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "../failure_code.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

using Coefficients = std::vector<std::string>;

TEST(PolynomialText, HighestDegreeFirst) {
    struct Row {
        Coefficients coefs;
        std::string text;
    };
    for (const Row& row : {Row{{"1", "2", "3"}, "1*x^2+2*x+3"}, Row{{"2", "0", "-1"}, "2*x^2+0*x-1"},
                           Row{{"-1", "-2.50", "0"}, "-1*x^2-2.5*x+0"}, Row{{"7"}, "7"}, Row{{"-7"}, "-7"},
                           Row{{"3", "-0"}, "3*x+0"}, Row{{"+5", ".5"}, "5*x+0.5"},
                           Row{{"1E20", "1"}, "1E+20*x+1"}, Row{{}, ""}}) {
        EXPECT_EQ(GetPolynomial(row.coefs), row.text);
    }
}

TEST(PolynomialText, WhatIsNoNumberIsRefused) {
    for (const Coefficients& coefs : {Coefficients{"1", " 2"}, Coefficients{""}, Coefficients{"1", "", "2"},
                                      Coefficients{"x"}, Coefficients{"1e5"}, Coefficients{"1", "-"}}) {
        EXPECT_EQ(GetPolynomial(coefs), std::nullopt);
    }
    EXPECT_EQ(testing::FailureOf([] { GetPolynomial(Coefficients{std::string(400, '9')}); }),
              numeric::FailureCode::Overflow);
}

TEST(PolynomialText, IsAFormula) {
    // 2 x^3 - x^2 + 0.5 x - 4 at x = 2
    const auto text = GetPolynomial(Coefficients{"2", "-1", "0.5", "-4"});
    ASSERT_TRUE(text);
    EXPECT_EQ(testing::ValueOfFormula(*text, {2}).Number(), 9);
}

}  // namespace
}  // namespace tavrelo::expr
