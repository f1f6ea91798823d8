#include "notation/cell_reference.h"

#include <gtest/gtest.h>

#include <optional>

#include "numeric/checked.h"

namespace tavrelo::notation {
namespace {

CellReference Plus(int point, double addend) { return {point, addend, std::nullopt}; }
CellReference Times(int point, double factor) { return {point, std::nullopt, factor}; }

TEST(CellReference, ReadsEveryForm) {
    struct Form {
        const char* text;
        CellReference reference;
    };
    const Form forms[] = {
        {"t3", Plus(3, 0)},      {"-t3", Times(3, -1)},      {"t3+5", Plus(3, 5)},
        {"t3-5", Plus(3, -5)},   {"t3 + 5.5", Plus(3, 5.5)}, {"x0 - .5", Plus(0, -0.5)},
        {"2*t3", Times(3, 2)},   {"-2*t3", Times(3, -2)},    {"2 * V8", Times(8, 2)},
        {"t3/2", Times(3, 0.5)}, {"-t3/4", Times(3, -0.25)}, {"v1/.5", Times(1, 2)},
        {"0*x1", Times(1, 0)},   {"t3+1E+2", Plus(3, 100)},  {"t3-1E-2", Plus(3, -0.01)},
    };
    for (const Form& form : forms) {
        const auto reference = ParseCellReference(form.text);
        ASSERT_TRUE(reference) << form.text;
        EXPECT_EQ(*reference, form.reference) << form.text;
    }
}

TEST(CellReference, RefusesEveryOtherMix) {
    for (const char* text :
         {"",       "t",      "3",      "33",     "t33",    "t3+",    "t3-",    "+t3",  "t3*2",
          "t3+5-2", "t3+5+2", "2*t3+1", "2*x2/3", "v2+3*2", "2*-t3",  "t3--5",  "*t3",  "t3/",
          "t3/x",   "t-3",    "-t3-5",  "-t3+5",  " t3 3",  "t3/2/2", "2*2*t3", "tt+5", "t33+5",
          "--t3",   "t3/-2",  "ñ3",     "1,5*t3", "1e2*t3", "2*x'"})
        EXPECT_FALSE(ParseCellReference(text)) << text;
}

TEST(CellReference, FailsWhereTheNumberDoesNotExist) {
    EXPECT_THROW(ParseCellReference("t3/0"), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::notation
