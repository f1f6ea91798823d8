#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::window {

/// The cells of a text from a spreadsheet: lines are rows, tabs part cells, and every cell stands as it is,
/// commas included. The end of the last line begins no row. Rows may differ in length; an empty text has
/// none.
std::vector<std::vector<std::string>> CellsOfBlock(std::string_view text);

}  // namespace tavrelo::window
