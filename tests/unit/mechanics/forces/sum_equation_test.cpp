#include "mechanics/forces/sum_equation.h"

#include <gtest/gtest.h>

#include "text/symbols.h"

namespace tavrelo::mechanics::forces {
namespace {

using notation::AngleFunction;
using notation::UnknownTerm;

const UnknownTerm kF1{"F1"};
const UnknownTerm kF2{"F2"};
const UnknownTerm kP{"P"};
const UnknownTerm kQ{"Q"};

struct EquationRow {
    SumEquation equation;
    int decimals;
    const char* text;
};

TEST(EquationMarkup, WritesSignedTermsAndDropsTheOnesThatVanish) {
    const EquationRow rows[] = {
        {{{{0.8660254, kF1}, {-0.7071068, kF2}}, 0}, 3, " 0.866 F!1 ;- 0.707 F!2 = 0"},
        {{{{1, kF1}, {0, kF2}}, -7.0710678}, 3, " F!1 ;- 7.071 = 0"},
        {{{{0, kF1}, {1, kF2}}, -7.0710678}, 3, "F!2 ;- 7.071 = 0"},
        {{{{-1, kP}, {0, kQ}}, 17.32051}, 3, " ;- P + 17.321 = 0"},
        {{{{0, kP}, {-1, kQ}}, 30}, 3, " ;- Q + 30 = 0"},
        {{{{0, kP}, {0, kQ}}, 30}, 3, "30 = 0"},
        {{{{0, kP}, {0, kQ}}, -30}, 3, " ;- 30 = 0"},
        {{{{1e-15, kP}, {1, kQ}}, -1e-15}, 3, "Q = 0"},
        {{{{0.9999999, kP}}, 2.00049}, 3, " P + 2 = 0"},
        {{{{20, {"", AngleFunction::Cos, "A"}}}, 0}, 3, " 20 cos A = 0"},
        {{{{0.86, kP}}, -12.34}, 1, " 0.9 P ;- 12.3 = 0"},
        {{{}, 0}, 3, " = 0"},
    };
    for (const EquationRow& row : rows)
        EXPECT_EQ(EquationMarkup(row.equation, text::SubscriptName, row.decimals), row.text);
}

TEST(TermMarkup, WritesEachNameByTheGivenRule) {
    const auto quoted = [](const std::string& name) { return "<" + name + ">"; };
    EXPECT_EQ(TermMarkup(kF1, quoted), "<F1>");
    EXPECT_EQ(TermMarkup({"", AngleFunction::Cos, "A1"}, quoted), "cos <A1>");
    EXPECT_EQ(TermMarkup({"f", AngleFunction::Sen, "Alfa"}, quoted), "<f> sen <Alfa>");
    EXPECT_EQ(TermMarkup({"F1", AngleFunction::Sen, "A12"}, text::SubscriptName), "F!1 sen A!1!2");
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
