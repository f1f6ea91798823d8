#include "mechanics/kinematics/rewriting.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::kinematics {
namespace {

struct Row {
    std::string (*rewrite)(std::string_view);
    const char* formula;
    const char* rewritten;
};

TEST(Rewriting, ChangesLettersMendsFiveNamesAndAppendsEachVariable) {
    const Row rows[] = {
        {Rewrite1, "t^2", "X^2+0*X"},
        {Rewrite1, "tan(t)", "tan(X)+0*X"},
        {Rewrite1, "cot(t)+acot(t)", "cot(X)+acot(X)+0*X"},
        {Rewrite1, "atan(t)", "atan(X)+0*X"},
        {Rewrite1, "exp(-t)", "exp(-X)+0*X"},  // no x changes in a formula of t alone
        {Rewrite1, "T+X", "T+X+0*X"},
        {Rewrite1, "", "+0*X"},
        {Rewrite2, "exp(-x)*t", "exp(-Y)*X+0*X+0*Y"},
        {Rewrite2, "sqrt(x)", "sqrX(Y)+0*X+0*Y"},
        {Rewrite2, "max(t,x)", "maY(X,Y)+0*X+0*Y"},
        {Rewrite3, "exp(-x)+v", "exp(-Y)+Z+0*X+0*Y+0*Z"},
        {Rewrite3, "9.8-0.5*v", "9.8-0.5*Z+0*X+0*Y+0*Z"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.rewrite(row.formula), row.rewritten) << row.formula;
}

}  // namespace
}  // namespace tavrelo::mechanics::kinematics
