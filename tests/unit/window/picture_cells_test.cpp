#include "window/picture_cells.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "test_host.h"
#include "window/guarded.h"

namespace tavrelo::window {
namespace {

constexpr int kSide = 20;

PictureCell CellAtPlace(int left, int top) {
    return {.name = std::to_string(left) + ", " + std::to_string(top), .bounds = {left, top, kSide, kSide}};
}

/// Two rows: three cells above, two below.
std::vector<PictureCell> TwoRows() {
    return {CellAtPlace(0, 0), CellAtPlace(20, 0), CellAtPlace(40, 0), CellAtPlace(0, 30),
            CellAtPlace(20, 30)};
}

struct StepCase {
    int from;
    Key key;
    int to;
};
const StepCase kSteps[] = {
    {0, Key::Right, 1},       {1, Key::Right, 2},      {2, Key::Right, kNoCell}, {1, Key::Left, 0},
    {0, Key::Left, kNoCell},  {0, Key::Down, 3},       {2, Key::Down, 4},        {4, Key::Up, 1},
    {3, Key::Up, 0},          {3, Key::Down, kNoCell}, {4, Key::Home, 0},        {0, Key::End, 4},
    {0, Key::Enter, kNoCell},
};

TEST(PictureCellsTest, ArrowsGoByWhereTheCellsLie) {
    const auto cells = TwoRows();
    for (const StepCase& row : kSteps)
        EXPECT_EQ(CellBeside(cells, row.from, row.key), row.to)
            << row.from << " by key " << static_cast<int>(row.key);
}

TEST(PictureCellsTest, DisabledCellsAreJumpedOver) {
    auto cells = TwoRows();
    cells[0].enabled = cells[1].enabled = cells[4].enabled = false;
    EXPECT_EQ(CellBeside(cells, 2, Key::Home), 2);
    EXPECT_EQ(CellBeside(cells, 2, Key::End), 3);
    EXPECT_EQ(CellBeside(cells, 2, Key::Left), 3);
    EXPECT_EQ(NearestCell(cells, {30, 10}), 2);
    cells[2].enabled = cells[3].enabled = false;
    for (const Key key : {Key::Home, Key::End, Key::Left, Key::Right})
        EXPECT_EQ(CellBeside(cells, 2, key), kNoCell);
}

TEST(PictureCellsTest, BesideNoCellLiesNone) {
    const auto cells = TwoRows();
    EXPECT_EQ(CellBeside(cells, kNoCell, Key::Right), kNoCell);
    EXPECT_EQ(CellBeside(cells, 5, Key::Left), kNoCell);
    EXPECT_EQ(CellBeside({}, kNoCell, Key::Home), kNoCell);
}

TEST(PictureCellsTest, ACellOwnsItsLeftAndUpperEdge) {
    const auto cells = TwoRows();
    EXPECT_EQ(CellUnder(cells, {20, 0}), 1);
    EXPECT_EQ(CellUnder(cells, {19.9, 0}), 0);
    EXPECT_EQ(CellUnder(cells, {0, 20}), kNoCell);
    EXPECT_EQ(CellUnder(cells, {60, 5}), kNoCell);
}

/// All hours of a clock are reached by arrows, as they lie on a circle.
TEST(PictureCellsTest, ACircleIsWalkedByArrows) {
    constexpr int kRadius = 48;
    std::vector<PictureCell> hours;
    for (int hour = 0; hour < 12; ++hour)
        hours.push_back(
            CellAtPlace(static_cast<int>(std::lround(kRadius * std::sin(hour * std::numbers::pi / 6))),
                        static_cast<int>(std::lround(-kRadius * std::cos(hour * std::numbers::pi / 6)))));
    const Key keys[] = {Key::Right, Key::Right, Key::Down, Key::Down, Key::Down, Key::Left,
                        Key::Left,  Key::Left,  Key::Up,   Key::Up,   Key::Up,   Key::Right};
    for (int hour = 0; hour < 12; ++hour)
        EXPECT_EQ(CellBeside(hours, hour, keys[hour]), (hour + 1) % 12) << hour;
}

/// A picture whose mouse events are kept.
class CellsOfAPictureTest : public testing::Test {
  protected:
    CellsOfAPictureTest() {
        picture.ListCells = [this] { return cells; };
        const auto keep = [this](std::vector<MouseStroke>& list) {
            return [&list](const MouseStroke& stroke) { list.push_back(stroke); };
        };
        On(form, picture.OnMouseDown, keep(downs));
        On(form, picture.OnMouseUp, keep(ups));
    }

    TestHost world;
    Form1 form{world.host};
    Picture& picture = form.Get<Picture>("picAccel");  // 42 high, y upward
    std::vector<PictureCell> cells = TwoRows();
    std::vector<MouseStroke> downs;
    std::vector<MouseStroke> ups;
};

TEST_F(CellsOfAPictureTest, AKeyClicksTheMiddleInThePicturesOwnUnits) {
    ASSERT_TRUE(picture.UserMoveCell(Key::Right));
    picture.UserChooseCell({.button = MouseButton::Right, .shift = true});
    ASSERT_EQ(downs.size(), 1u);
    EXPECT_EQ(downs[0].x, 30);
    EXPECT_EQ(downs[0].y, 32);
    EXPECT_EQ(downs[0].button, MouseButton::Right);
    EXPECT_TRUE(downs[0].shift);
    EXPECT_FALSE(downs[0].ctrl);
    ASSERT_EQ(ups.size(), 1u);
    EXPECT_EQ(ups[0].x, 30);
}

TEST_F(CellsOfAPictureTest, StartsAtTheCheckedChoice) {
    EXPECT_EQ(picture.CurrentCell(), 0);
    cells[3].checked = true;
    EXPECT_EQ(picture.CurrentCell(), 0);
    cells[3].role = CellRole::Choice;
    EXPECT_EQ(picture.CurrentCell(), 3);
    picture.UserMoveCell(Key::Right);
    EXPECT_EQ(picture.CurrentCell(), 4);
}

TEST_F(CellsOfAPictureTest, KeepsItsPlaceWhenCellsComeAndGo) {
    picture.UserGoToCell(4);
    cells.erase(cells.begin());
    EXPECT_EQ(picture.CurrentCell(), 3);
    cells = {CellAtPlace(0, 0)};
    EXPECT_EQ(picture.CurrentCell(), 0);
    cells.clear();
    EXPECT_EQ(picture.CurrentCell(), kNoCell);
    picture.UserChooseCell({});
    EXPECT_TRUE(downs.empty());
}

TEST_F(CellsOfAPictureTest, FollowsTheMouse) {
    picture.UserMouseDown({.x = 30, .y = 42 - 40});
    EXPECT_EQ(picture.CurrentCell(), 4);
}

TEST_F(CellsOfAPictureTest, TakesACellUpAndPutsItDownElsewhere) {
    for (PictureCell& cell : cells)
        cell.drags_with = MouseButton::Left;
    picture.UserChooseCell({});
    EXPECT_EQ(picture.HeldWith(), MouseButton::Left);
    EXPECT_TRUE(ups.empty());
    picture.UserMoveCell(Key::Right);
    picture.UserChooseCell({.shift = true});
    EXPECT_FALSE(picture.HeldWith());
    EXPECT_EQ(downs.size(), 1u);
    ASSERT_EQ(ups.size(), 1u);
    EXPECT_EQ(ups[0].x, 30);
    EXPECT_TRUE(ups[0].shift);
}

TEST_F(CellsOfAPictureTest, ReleasesAHeldCellOutside) {
    cells[0].drags_with = MouseButton::Right;
    picture.UserChooseCell({.button = MouseButton::Right});
    picture.UserLetGo();
    picture.UserLetGo();
    ASSERT_EQ(ups.size(), 1u);
    EXPECT_LT(ups[0].x, 0);
    EXPECT_EQ(ups[0].button, MouseButton::Right);
}

TEST_F(CellsOfAPictureTest, OnlyTheButtonThatDragsTakesUp) {
    cells[0].drags_with = MouseButton::Right;
    picture.UserChooseCell({});
    EXPECT_FALSE(picture.HeldWith());
    EXPECT_EQ(ups.size(), 1u);
}

TEST_F(CellsOfAPictureTest, WithoutCellsTakesNoKey) {
    EXPECT_FALSE(form.Get<Picture>("pic").UserMoveCell(Key::Right));
}
}  // namespace
}  // namespace tavrelo::window
