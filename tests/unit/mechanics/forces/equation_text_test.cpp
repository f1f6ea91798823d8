#include "mechanics/forces/equation_text.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::forces {
namespace {

struct EquationRow {
    Equation equation;
    int decimals;
    const char* text;
};

TEST(EquationText, WritesSignedTermsAndDropsTheOnesThatVanish) {
    const EquationRow rows[] = {
        {{{{0.8660254, "F!1"}, {-0.7071068, "F!2"}}, 0}, 3, " 0.866 F!1 ;- 0.707 F!2 = 0"},
        {{{{1, "F!1"}, {0, "F!2"}}, -7.0710678}, 3, " F!1 ;- 7.071 = 0"},
        {{{{0, "F!1"}, {1, "F!2"}}, -7.0710678}, 3, "F!2 ;- 7.071 = 0"},
        {{{{-1, "P"}, {0, "Q"}}, 17.32051}, 3, " ;- P + 17.321 = 0"},
        {{{{0, "P"}, {-1, "Q"}}, 30}, 3, " ;- Q + 30 = 0"},
        {{{{0, "P"}, {0, "Q"}}, 30}, 3, "30 = 0"},
        {{{{0, "P"}, {0, "Q"}}, -30}, 3, " ;- 30 = 0"},
        {{{{1e-15, "P"}, {1, "Q"}}, -1e-15}, 3, "Q = 0"},
        {{{{0.9999999, "P"}}, 2.00049}, 3, " P + 2 = 0"},
        {{{{20, "cos A"}}, 0}, 3, " 20 cos A = 0"},
        {{{{0.86, "F"}}, -12.34}, 1, " 0.9 F ;- 12.3 = 0"},
        {{{}, 0}, 3, " = 0"},
    };
    for (const EquationRow& row : rows)
        EXPECT_EQ(EquationText(row.equation, row.decimals), row.text);
}

TEST(AngleLabel, MarksTheSubscriptsOfItsNames) {
    EXPECT_EQ(AngleLabel(kCos, "A1"), "cos A!1");
    EXPECT_EQ(AngleLabel("F1", kSen, "A12"), "F!1 sen A!1!2");
    EXPECT_EQ(AngleLabel("f", kSen, "Alfa"), "f sen Alfa");
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
