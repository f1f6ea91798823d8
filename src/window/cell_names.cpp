#include "window/cell_names.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tavrelo::window {
namespace {

constexpr std::string_view kEmpty = "vacía";
constexpr std::string_view kColumn = "columna ";
constexpr std::string_view kRow = "renglón ";

struct Abbreviation {
    std::string_view heading;
    std::string_view words;
};
constexpr Abbreviation kAbbreviations[] = {
    {"#", "Número"},     {"Cpo.", "Cuerpo"}, {"Pto.", "Punto"}, {"Fuerza[:][/Par]", "Fuerza o par"},
    {"Mom.", "Momento"},
};

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// A heading as it is said; a number, "7" or "#7", goes behind `kind`.
std::string Said(std::string_view heading, std::string_view kind) {
    heading = Trimmed(heading);
    const auto* found = std::ranges::find(kAbbreviations, heading, &Abbreviation::heading);
    if (found != std::end(kAbbreviations))
        return std::string(found->words);
    if (heading.starts_with('#'))
        heading.remove_prefix(1);
    const bool is_number = heading.find_first_not_of("0123456789") == std::string_view::npos;
    return is_number && !heading.empty() ? std::string(kind).append(heading) : std::string(heading);
}

std::string FixedCell(const Grid& grid, int row, int col) {
    return grid.HasCell(row, col) ? grid.Cell(row, col) : std::string();
}

}  // namespace

std::string ColumnHeading(const Grid& grid, int col) {
    std::string heading;
    if (grid.FixedRows() > 0)
        heading = Said(FixedCell(grid, 0, col), kColumn);
    else if (grid.NameColumn)
        heading = grid.NameColumn(col);
    return heading.empty() ? std::string(kColumn) + std::to_string(col - grid.FixedCols() + 1) : heading;
}

std::string RowHeading(const Grid& grid, int row) {
    const std::string heading = grid.FixedCols() > 0 ? Said(FixedCell(grid, row, 0), kRow) : std::string();
    return heading.empty() ? std::string(kRow) + std::to_string(row - grid.FixedRows() + 1) : heading;
}

std::string CellName(const Grid& grid, int row, int col) {
    const std::string_view content = Trimmed(grid.Cell(row, col));
    std::string name = RowHeading(grid, row) + ", " + ColumnHeading(grid, col) + ": ";
    return name.append(content.empty() ? kEmpty : content);
}

}  // namespace tavrelo::window
