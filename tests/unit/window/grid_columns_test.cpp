#include "window/grid_columns.h"

#include <gtest/gtest.h>

#include "test_host.h"

namespace tavrelo::window {
namespace {

TEST(GridColumns, GiveATableOfHeadingsAlone) {
    TestHost world;
    Form1 form(world.host);
    Grid& grid = form.Get<Grid>("gdEqui");
    grid.Arrange(5, 5, 0, 0);
    grid.SetCell(2, 1, "12");
    int told = 0;
    form.OnChange = [&](Control&, Change change) { told += change == Change::Content; };
    constexpr GridColumn kColumns[] = {{"#", 330, Alignment::Left}, {"Fuerza", 1655}, {"Fx", 1450}};
    ArrangeColumns(grid, kColumns);
    ASSERT_EQ(grid.Rows(), 1);
    ASSERT_EQ(grid.Cols(), 3);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
    EXPECT_EQ(grid.Cell(0, 1), "Fuerza");
    EXPECT_EQ(grid.ColWidth(0), 330);
    EXPECT_EQ(grid.ColWidth(2), 1450);
    EXPECT_EQ(grid.ColAlignment(0), Alignment::Left);
    EXPECT_EQ(grid.ColAlignment(1), Alignment::Center);
    EXPECT_EQ(told, 1);
    EXPECT_THROW(grid.ColWidth(3), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::window
