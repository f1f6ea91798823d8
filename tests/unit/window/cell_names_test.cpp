#include "window/cell_names.h"

#include <gtest/gtest.h>

#include "test_host.h"
#include "window/grid_columns.h"

namespace tavrelo::window {
namespace {

class CellNamesTest : public testing::Test {
  protected:
    TestHost world;
    Form1 form{world.host};
};

TEST_F(CellNamesTest, TakeTheHeadingsOfTheirRowAndColumn) {
    Grid& grid = form.Get<Grid>("gdEqui");
    constexpr GridColumn kColumns[] = {{"  #", 300}, {"Fuerza", 900}, {"Fx", 900}};
    ArrangeColumns(grid, kColumns);
    grid.AddRow({"1", "p30x,F1", ""});
    EXPECT_EQ(ColumnHeading(grid, 0), "Número");
    EXPECT_EQ(ColumnHeading(grid, 1), "Fuerza");
    EXPECT_EQ(RowHeading(grid, 1), "renglón 1");
    EXPECT_EQ(CellName(grid, 1, 1), "renglón 1, Fuerza: p30x,F1");
    EXPECT_EQ(CellName(grid, 1, 2), "renglón 1, Fx: vacía");
}

TEST_F(CellNamesTest, SayNumbersAndAbbreviationsInFull) {
    Grid& grid = form.Get<Grid>("gd1");
    constexpr GridColumn kColumns[] = {{"#", 300},    {"Cpo.", 400}, {"Pto.", 400}, {"Fuerza[:][/Par]", 900},
                                       {"Mom.", 900}, {"7", 900},    {"#8", 900}};
    ArrangeColumns(grid, kColumns);
    const std::string_view kSaid[] = {"Número",  "Cuerpo",    "Punto",    "Fuerza o par",
                                      "Momento", "columna 7", "columna 8"};
    for (int col = 0; col < grid.Cols(); ++col)
        EXPECT_EQ(ColumnHeading(grid, col), kSaid[col]);
}

TEST_F(CellNamesTest, ColumnsWithoutAFixedRowAskTheirTool) {
    Grid& grid = form.Get<Grid>("Gd2");
    grid.Arrange(2, 3, 0, 1);
    grid.SetCell(1, 0, " v");
    grid.SetCell(1, 2, "12.5");
    EXPECT_EQ(CellName(grid, 1, 2), "v, columna 2: 12.5");
    grid.NameColumn = [](int col) { return "punto " + std::to_string(col - 1); };
    EXPECT_EQ(CellName(grid, 1, 2), "v, punto 1: 12.5");
    EXPECT_EQ(CellName(grid, 0, 1), "renglón 1, punto 0: vacía");
}

TEST_F(CellNamesTest, ACellBesideTheGridFails) {
    EXPECT_THROW(CellName(form.Get<Grid>("gd"), 900, 1), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::window
