#include "tools/calculator/routine_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tavrelo::tools::calculator {
namespace {

using frame::RoutineNeed;

constexpr int kFirstRoutine = 1;
constexpr int kLastRoutine = 38;
constexpr int kHiddenRoutine = 38;  // only the particle's own tool leads to its work

TEST(RoutineTable, HoldsEveryRoutineWithItsWork) {
    for (int number = kFirstRoutine; number <= kLastRoutine; ++number) {
        const bool exists = number != 3 && number != 4;
        const Routine* routine = FindRoutine(number);
        ASSERT_EQ(routine != nullptr, exists) << number;
        if (!exists)
            continue;
        EXPECT_EQ(routine->number, number);
        EXPECT_FALSE(routine->title.empty()) << number;
        EXPECT_FALSE(routine->prompt.empty()) << number;
        EXPECT_NE(routine->run, nullptr) << number;
    }
    EXPECT_EQ(FindRoutine(0), nullptr);
    EXPECT_EQ(FindRoutine(kLastRoutine + 1), nullptr);
}

/// The strip of icons is painted in this order.
TEST(RoutineTable, GivesTheMenuItsIconsInOrder) {
    const std::vector<std::vector<int>> kIcons = {{1, 2},
                                                  {5, 6, 7, 8, 9},
                                                  {10, 11, 12},
                                                  {13, 14, 15, 16, 17, 18, 19, 9, 20},
                                                  {20, 21, 22},
                                                  {23, 24, 25, 26},
                                                  {27, 28, 29, 30, 31, 32, 33},
                                                  {34, 35, 36, 37}};
    std::vector<std::vector<int>> icons;
    for (const frame::RoutineGroup& group : RoutineMenu()) {
        icons.emplace_back();
        for (const frame::RoutineIcon& icon : group.icons) {
            icons.back().push_back(icon.routine);
            const Routine* routine = FindRoutine(icon.routine);
            ASSERT_NE(routine, nullptr) << icon.routine;
            EXPECT_EQ(icon.title, routine->title);
        }
    }
    EXPECT_EQ(icons, kIcons);
}

TEST(RoutineTable, EveryRoutineOfTheMenuHasAHelpTextOfItsOwn) {
    std::map<int, int> routine_of_help;
    for (const frame::RoutineGroup& group : RoutineMenu())
        for (const frame::RoutineIcon& icon : group.icons) {
            const auto [known, is_new] = routine_of_help.emplace(icon.help_index, icon.routine);
            EXPECT_EQ(known->second, icon.routine) << icon.help_index;
        }
    // The texts 1 to 35, without a gap; the one behind them is of the routine that no icon leads to.
    ASSERT_EQ(routine_of_help.size(), 35u);
    EXPECT_EQ(routine_of_help.begin()->first, 1);
    EXPECT_EQ(routine_of_help.rbegin()->first, 35);
    EXPECT_EQ(FindRoutine(kHiddenRoutine)->icons[0].group, 0);
}

TEST(RoutineTable, VectorsNeedTheClockAndFunctionsTheFormulaBox) {
    std::set<int> with_clock;
    std::set<int> with_formula;
    for (const frame::RoutineGroup& group : RoutineMenu())
        for (const frame::RoutineIcon& icon : group.icons) {
            if (icon.need == RoutineNeed::Clock)
                with_clock.insert(icon.routine);
            if (icon.need == RoutineNeed::Formula)
                with_formula.insert(icon.routine);
        }
    EXPECT_EQ(with_clock, (std::set<int>{27, 28, 29, 30, 31, 32, 33, 36}));
    EXPECT_EQ(with_formula, (std::set<int>{9, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22}));
}

}  // namespace
}  // namespace tavrelo::tools::calculator
