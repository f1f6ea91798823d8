#pragma once

#include <string>

#include "window/controls.h"

namespace tavrelo::window {

// What the cells of a table are called by a voice that reads the window aloud. Rows and columns count as the
// grid does.

/// The heading of a column: the text of the fixed row, else what the grid's NameColumn says. Abbreviations
/// are said in full, and a bare number as "columna 2".
std::string ColumnHeading(const Grid& grid, int col);

/// The heading of a row: the text of the fixed column; a bare number as "renglón 2".
std::string RowHeading(const Grid& grid, int row);

/// A cell with its headings and its content: "v, punto 2: 12.5", "renglón 1, Fuerza: vacía".
std::string CellName(const Grid& grid, int row, int col);

}  // namespace tavrelo::window
