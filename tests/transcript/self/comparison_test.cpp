#include "comparison.h"

#include <gtest/gtest.h>

namespace tavrelo::transcript {
namespace {

/// The step of a command on line 1 that is expected to show these lines, from line 2 on.
Step StepExpecting(const std::vector<std::string>& lines) {
    Step step{1, "show rtbCalc", {}, {}};
    for (const std::string& line : lines)
        step.expected.push_back({static_cast<int>(step.expected.size()) + 2, line});
    return step;
}

struct Case {
    const char* name;
    std::vector<std::string> expected;
    std::vector<std::string> shown;
    std::vector<int> differing_lines;
};

const std::vector<Case> kCases = {
    {"nothing", {}, {}, {}},
    {"equal", {"a", "b"}, {"a", "b"}, {}},
    {"blank lines are dropped", {"a", "b"}, {"", "a", "  ", "b", ""}, {}},
    {"trailing blanks are dropped", {"a  "}, {"a "}, {}},
    {"leading blanks count", {"a"}, {" a"}, {2}},
    {"inner blanks count", {"a b"}, {"a  b"}, {2}},
    {"one differs", {"a", "b", "c"}, {"a", "x", "c"}, {3}},
    {"one is missing in front", {"a", "b", "c"}, {"b", "c"}, {2}},
    {"one is missing at the end", {"a", "b"}, {"a"}, {3}},
    {"one too many stands at the command", {"a"}, {"a", "b"}, {1}},
    {"nothing was expected", {}, {"a"}, {1}},
    {"any text of a box", {"box \"\" OK", "| ...", "a"}, {"box \"\" OK", "| one", "| two", "a"}, {}},
    {"any text is no text too", {"box \"\" OK", "| ..."}, {"box \"\" OK"}, {}},
    {"any text in front of a known line", {"| ...", "| end"}, {"| one", "| two", "| end"}, {}},
    {"any text does not take another box",
     {"box \"a\" OK", "| ..."},
     {"box \"a\" OK", "| one", "box \"b\" OK"},
     {1}},
    {"any text is only text of boxes", {"| ..."}, {"a"}, {2}},
};

TEST(Comparison, FindsTheLinesThatDiffer) {
    for (const Case& row : kCases) {
        std::vector<int> lines;
        for (const Difference& difference : Compare(StepExpecting(row.expected), row.shown))
            lines.push_back(difference.line_number);
        EXPECT_EQ(lines, row.differing_lines) << row.name;
    }
}

TEST(Comparison, TellsBothSides) {
    const auto differences = Compare(StepExpecting({"a", "b"}), {"a", "x", "y"});
    ASSERT_EQ(differences.size(), 2U);
    EXPECT_EQ(differences[0].wanted, "b");
    EXPECT_EQ(differences[0].got, "x");
    EXPECT_EQ(differences[1].wanted, std::nullopt);
    EXPECT_EQ(differences[1].got, "y");
}

}  // namespace
}  // namespace tavrelo::transcript
