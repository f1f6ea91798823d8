#include "mechanics/rigid/equilibrium_check.h"

#include <gtest/gtest.h>

#include <cmath>

#include "body_rows.h"

namespace tavrelo::mechanics::rigid {
namespace {

// R u + load = 0 alone.
BodyEquations Pull(double load, double coef = 1) {
    BodyEquations equations;
    equations.equations = {{1, BodySum::X, {{coef, {"R", notation::AngleFunction::None, {}}}}, load}};
    return equations;
}

TEST(HoldsWith, AllowsAThousandthOfAUnitAndOfTheLargestTerm) {
    struct Row {
        double load;
        double found;
        bool holds;
    };
    const Row rows[] = {
        {-100, 100, true},      {-100, 100.0009, true}, {-100, 100.0011, false},
        {-100, 99.9989, false}, {-0.1, 0.10009, true},  {-0.1, 0.1002, false},
        {-1e-6, 1e-6, true},    {-1e-6, 2e-6, false},   {-1e9, 1e9 + 0.5, true},
        {-1e9, 1e9 + 2, false}, {0, 0, true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(HoldsWith(Pull(row.load), {{"R", row.found}}), row.holds) << row.load << ' ' << row.found;
}

TEST(HoldsWith, PutsAnglesIn) {
    BodyEquations equations = Pull(-3, 1);
    equations.equations[0].terms = {{10, {"", notation::AngleFunction::Cos, "Q"}},
                                    {1, {"R", notation::AngleFunction::Sen, "Q"}}};
    // 10 · 0.5 + R · 0.866 = 3
    EXPECT_TRUE(HoldsWith(equations, {{"R", -2 / std::sqrt(0.75)}, {"q", 60, true}}));
    EXPECT_FALSE(HoldsWith(equations, {{"R", -2 / std::sqrt(0.75)}, {"Q", 59, true}}));
    EXPECT_FALSE(HoldsWith(equations, {{"R", 1}}));
}

TEST(HoldsWith, ForgivesDustBesideLargeTerms) {
    // What is left of 100 cos 90 in x is no force beside 100 in y.
    BodyEquations equations = Pull(-100);
    equations.equations.push_back({1, BodySum::Y, {}, 6e-15});
    EXPECT_TRUE(HoldsWith(equations, {{"R", 100}}));
    equations.equations[1].constant = 6e-9;
    EXPECT_FALSE(HoldsWith(equations, {{"R", 100}}));
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
