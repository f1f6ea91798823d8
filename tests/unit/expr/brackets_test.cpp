#include "expr/brackets.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tavrelo::expr {
namespace {

TEST(CheckParentheses, AllKindsBecomeParentheses) {
    struct Row {
        std::string text;
        std::string normal;
    };
    for (const Row& row :
         {Row{"", ""}, Row{"2+3", "2+3"}, Row{"{[(2)]}", "(((2)))"}, Row{"[2)", "(2)"}, Row{")(", ")("},
          Row{"SEN[ñ}", "SEN(ñ)"}, Row{std::string("(\0]", 3), std::string("(\0)", 3)}}) {
        EXPECT_EQ(CheckParentheses(row.text), row.normal);
    }
}

TEST(CheckParentheses, CountsMustAgree) {
    for (const std::string text : {"(", ")", "(2", "2)", "((2)", "{[2]", "]]["}) {
        EXPECT_EQ(CheckParentheses(text), std::nullopt) << text;
    }
    EXPECT_EQ(kParenthesesDisagree, "Los paréntesis no concuerdan.");
}

}  // namespace
}  // namespace tavrelo::expr
