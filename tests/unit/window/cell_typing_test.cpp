#include "window/cell_typing.h"

#include <gtest/gtest.h>

#include "test_host.h"
#include "window/form1.h"

namespace tavrelo::window {
namespace {

class CellTypingTest : public testing::Test {
  protected:
    CellTypingTest() {
        grid.Arrange(3, 3, 1, 1);
        grid.SetCurrent(1, 1);
    }

    void Type(std::u32string_view characters) {
        for (const char32_t character : characters)
            EXPECT_TRUE(TypeIntoCell(grid, rules, character));
    }
    bool Ctrl(char32_t letter) { return EditCell(grid, rules, world, {.character = letter, .ctrl = true}); }
    const std::string& Shown() const { return grid.Cell(1, 1); }

    TestHost world;
    Form1 form{world.host};
    Grid& grid = form.Get<Grid>("gd");
    CellRules rules;
};

TEST_F(CellTypingTest, CharactersAreAppendedAndTheBackspaceTakesThemAway) {
    Type(U"añ²");
    EXPECT_EQ(Shown(), "añ²");
    Type(std::u32string{kBackspaceCharacter});
    EXPECT_EQ(Shown(), "añ");
    Type(std::u32string{kBackspaceCharacter, kBackspaceCharacter});
    EXPECT_EQ(Shown(), "");
}

TEST_F(CellTypingTest, KeysWithoutACharacterAreLeftToOthers) {
    EXPECT_FALSE(TypeIntoCell(grid, rules, kBackspaceCharacter));  // the cell is empty
    EXPECT_FALSE(TypeIntoCell(grid, rules, kEnterCharacter));
    EXPECT_FALSE(EditCell(grid, rules, world, {.key = Key::Insert}));
    EXPECT_FALSE(EditCell(grid, rules, world, {.character = U'c'}));
    EXPECT_FALSE(EditCell(grid, rules, world, {.character = U'c', .ctrl = true, .alt = true}));
    EXPECT_FALSE(Ctrl(U'b'));
    EXPECT_EQ(Shown(), "");
}

TEST_F(CellTypingTest, OtherCharactersThanTheAllowedAreIgnored) {
    rules.allowed = U"0123456789.+-txyv*/ ";
    Type(U"2*t1 - T3ñ,");
    EXPECT_EQ(Shown(), "2*t1 - 3");
}

TEST_F(CellTypingTest, ATableWithoutACurrentCellTakesNothing) {
    grid.SetCurrent(-1, -1);
    EXPECT_FALSE(TypeIntoCell(grid, rules, U'5'));
    EXPECT_FALSE(EditCell(grid, rules, world, {.key = Key::Delete}));
    EXPECT_FALSE(Ctrl(U'v'));
}

TEST_F(CellTypingTest, TheClipboardTakesAndGivesAWholeCell) {
    Type(U"3.5");
    EXPECT_TRUE(Ctrl(U'c'));
    EXPECT_EQ(world.clipboard_text, "3.5");
    EXPECT_EQ(Shown(), "3.5");
    EXPECT_TRUE(Ctrl(U'X'));
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(Ctrl(U'v'));
    EXPECT_EQ(Shown(), "3.5");
    EXPECT_TRUE(EditCell(grid, rules, world, {.key = Key::Delete}));
    EXPECT_EQ(Shown(), "");
}

TEST_F(CellTypingTest, APastedTextLosesItsLineEndAndTheBlanksAround) {
    for (const char* pasted : {" 12 \r\n", " 12 \r\n ", "12\n", "12"}) {
        world.clipboard_text = pasted;
        Ctrl(U'v');
        EXPECT_EQ(Shown(), "12") << pasted;
    }
}

/// A table that keeps ten thirds with all digits and shows three decimals.
TEST_F(CellTypingTest, ATableMayKeepMoreThanItShows) {
    std::string kept = "3.33333333333333";
    grid.SetCell(1, 1, "3.333");
    rules.on_content = [&](CellPlace place, const std::string& content) {
        EXPECT_EQ(place.row, 1);
        EXPECT_EQ(place.col, 1);
        kept = content;
    };
    rules.content_of = [&](CellPlace) { return kept; };
    rules.shown = [](const std::string& content) { return content.substr(0, 5); };
    Ctrl(U'c');
    EXPECT_EQ(world.clipboard_text, "3.33333333333333");
    Type(std::u32string{kBackspaceCharacter});
    EXPECT_EQ(kept, "3.33");  // what was shown, shortened
    Ctrl(U'v');
    EXPECT_EQ(Shown(), "3.333");
    EXPECT_EQ(kept, "3.33333333333333");
    Ctrl(U'x');
    EXPECT_EQ(kept, "");
}

TEST_F(CellTypingTest, ABlockIsEmptiedAtOnce) {
    for (int row = 1; row < 3; ++row)
        for (int col = 1; col < 3; ++col)
            grid.SetCell(row, col, "5");
    int told = 0;
    form.OnChange = [&](Control&, Change) { ++told; };
    EmptyCells(grid, {1, 1, 2, 1});
    EXPECT_EQ(grid.Cell(2, 1), "");
    EXPECT_EQ(grid.Cell(2, 2), "5");
    EXPECT_EQ(told, 1);
}

TEST_F(CellTypingTest, ABlockIsCopiedWithTabsAndLineEnds) {
    EXPECT_EQ(TextOfBlock(grid), std::nullopt);  // nothing stands there
    grid.SetCell(1, 1, "1");
    grid.SetCell(2, 2, "ñ");
    EXPECT_EQ(TextOfBlock(grid), "1");
    grid.Select({1, 1, 2, 2});
    EXPECT_EQ(TextOfBlock(grid), "1\t\n\tñ");
    grid.Select({2, 1, 2, 2});
    EXPECT_EQ(TextOfBlock(grid), "\tñ");
    grid.SetCurrent(-1, -1);
    EXPECT_EQ(TextOfBlock(grid), std::nullopt);
}

}  // namespace
}  // namespace tavrelo::window
