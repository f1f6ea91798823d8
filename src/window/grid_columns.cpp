#include "window/grid_columns.h"

namespace tavrelo::window {

void ArrangeColumns(Grid& grid, std::span<const GridColumn> columns) {
    const ChangeBatch batch(grid);
    grid.Arrange(1, static_cast<int>(columns.size()), 1, 1);
    int col = 0;
    for (const GridColumn& column : columns) {
        grid.SetCell(0, col, std::string(column.heading));
        grid.SetColWidth(col, column.width);
        grid.SetColAlignment(col, column.alignment);
        ++col;
    }
}

}  // namespace tavrelo::window
