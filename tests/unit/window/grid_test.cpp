#include <gtest/gtest.h>

#include "test_host.h"
#include "window/guarded.h"

namespace tavrelo::window {
namespace {

class GridTest : public testing::Test {
  protected:
    GridTest() { grid.Arrange(4, 4, 1, 1); }

    TestHost world;
    Form1 form{world.host};
    Grid& grid = form.Get<Grid>("gd");
};

TEST_F(GridTest, APressOnAHeadingChangesNothing) {
    grid.UserPress(2, 2);
    grid.UserPress(0, 1);
    grid.UserPress(1, 0);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 2);
}

TEST_F(GridTest, ADragKeepsItsSense) {
    grid.UserDrag({3, 3, 1, 2});
    EXPECT_EQ(grid.Selection(), (CellBlock{1, 2, 3, 3}));
    EXPECT_EQ(grid.DraggedBlock(), (CellBlock{3, 3, 1, 2}));
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridTest, ArrowKeysStopAtTheEdges) {
    grid.UserPress(1, 1);
    grid.UserNavigate(Key::Up, false);
    grid.UserNavigate(Key::Left, false);
    EXPECT_EQ(grid.Selection(), (CellBlock{1, 1, 1, 1}));
    for (int k = 0; k < 9; ++k)
        grid.UserNavigate(Key::Down, false);
    EXPECT_EQ(grid.Row(), 3);
    grid.UserNavigate(Key::Right, true);
    EXPECT_EQ(grid.Selection(), (CellBlock{3, 1, 3, 2}));
}

TEST_F(GridTest, ACellOutsideFails) {
    EXPECT_THROW(grid.Cell(4, 0), numeric::RuntimeFailure);
    EXPECT_THROW(grid.SetCell(0, -1, ""), numeric::RuntimeFailure);
    EXPECT_THROW(grid.RemoveRow(7), numeric::RuntimeFailure);
}

TEST_F(GridTest, RemovingTheCurrentLastRowLeavesNoCurrentCell) {
    grid.UserPress(3, 1);
    grid.RemoveRow(3);
    EXPECT_EQ(grid.Row(), -1);
}

TEST_F(GridTest, TheKeysBeginAtTheFirstCellWhenNoneIsCurrent) {
    grid.UserPress(3, 1);
    grid.RemoveRow(3);
    grid.UserNavigate(Key::Down, false);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    grid.UserNavigate(Key::Down, false);
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(GridTest, OtherKeysMoveNothing) {
    grid.UserPress(2, 3);
    grid.UserNavigate(Key::Enter, false);
    EXPECT_EQ(grid.Selection(), (CellBlock{2, 3, 2, 3}));
}

TEST_F(GridTest, ADragCellByCellSelectsFromThePressedCell) {
    int changes = 0;
    On(form, grid.OnSelChange, [&] { ++changes; });
    grid.UserPress(2, 2);
    changes = 0;
    grid.UserDragTo(3, 3);
    EXPECT_EQ(grid.Selection(), (CellBlock{2, 2, 3, 3}));
    grid.UserDragTo(3, 3);
    EXPECT_EQ(changes, 1);
    grid.UserDragTo(0, 0);  // over the headings: as far as the cells go
    EXPECT_EQ(grid.Selection(), (CellBlock{1, 1, 2, 2}));
    EXPECT_EQ(grid.DraggedBlock(), (CellBlock{2, 2, 1, 1}));
    grid.UserDragTo(9, 1);  // beside the table
    EXPECT_EQ(grid.DraggedBlock(), (CellBlock{2, 2, 1, 1}));
    EXPECT_EQ(changes, 2);
}

TEST_F(GridTest, ADragNeedsACurrentCell) {
    grid.UserPress(3, 1);
    grid.RemoveRow(3);
    grid.UserDragTo(2, 2);
    EXPECT_EQ(grid.Row(), -1);
}

TEST_F(GridTest, ADoubleClickOnAHeadingIsNone) {
    int clicks = 0;
    On(form, grid.OnDblClick, [&] { ++clicks; });
    grid.UserDblClick(0, 2);
    grid.UserDblClick(2, 0);
    grid.UserDblClick(4, 1);
    EXPECT_EQ(clicks, 0);
    grid.UserDblClick(3, 2);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridTest, ACellKeepsItsColour) {
    const text::Color red = text::Rgb(255, 0, 0);
    const text::Color before = grid.CellBackColor(1, 1);
    grid.SetCellBackColor(2, 1, red);
    EXPECT_EQ(grid.CellBackColor(2, 1), red);
    EXPECT_EQ(grid.CellBackColor(1, 1), before);
}
TEST_F(GridTest, TellsOfRowsThatComeAndGo) {
    int tellings = 0;
    form.OnChange = [&](Control& control, Change change) {
        if (&control == &grid && change == Change::Content)
            ++tellings;
    };
    grid.AddRow({"1", "2"});
    EXPECT_EQ(tellings, 1);
    grid.RemoveRow(4);
    EXPECT_EQ(tellings, 2);
}
}  // namespace
}  // namespace tavrelo::window
