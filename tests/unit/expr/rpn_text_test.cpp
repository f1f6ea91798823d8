#include <gtest/gtest.h>

#include <string>

#include "expr/expression.h"
#include "formula.h"

namespace tavrelo::expr {
namespace {

TEST(RPNExpression, ShowsTheTokensInOrder) {
    struct Row {
        std::string formula;
        std::string tokens;
    };
    for (const Row& row :
         {Row{"2+3", " 2 3 +"}, Row{"2*(3+4)", " 2 3 4 + *"}, Row{"2^3^2", " 2 3 ^ 2 ^"},
          Row{"-X^2", " X 2 ^ -"}, Row{"-2^2", " -2 2 ^"}, Row{"2*-3", " 2 -3 *"},
          Row{"sen(x)+1E5", " x SEN 1E5 +"}, Row{"1.50", " 1.5"}, Row{"007", " 007"},
          Row{"min(1,y)", " 1 y MIN"}, Row{"iif(x<=1,pi,rads())", " x 1 <= PI RADS IIF"},
          Row{"not 1 = 1", " 1 1 = NOT"}, Row{"7 mod 2\\3", " 7 2 3 \\ MOD"}, Row{"2+", ""}, Row{"", ""}}) {
        CExpression expression(testing::kDegrees);
        expression.SetExpression(row.formula);
        EXPECT_EQ(expression.RPNExpression(), row.tokens) << row.formula;
    }
}

TEST(RPNExpression, AVariableKeepsItsFirstSpelling) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("x+1");
    expression.SetExpression("X*2");
    EXPECT_EQ(expression.RPNExpression(), " x 2 *");
}

}  // namespace
}  // namespace tavrelo::expr
