#include "mechanics/points/table.h"

#include <utility>

#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::points {

Cell NumberCell(double number, int decimals) { return {number, text::RoundedText(number, decimals)}; }

Cell TextCell(std::string_view text) {
    if (text.empty())
        return {};
    return {text::Value(text), std::string(text)};
}

Cell PastedCell(std::string_view content, int decimals) {
    Cell cell = TextCell(content);
    if (text::IsNum(content))
        cell.shown = text::RoundedText(text::ToNumber(content), decimals);
    return cell;
}

const Cell& Table::At(int row, int column) const {
    if (row < 0 || row >= m_rows || column < 1 || column > kMostPoints)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "table of points");
    return m_cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column - 1)];
}

Cell& Table::At(int row, int column) { return const_cast<Cell&>(std::as_const(*this).At(row, column)); }

void Table::SetNumber(int row, int column, double number, int decimals) {
    At(row, column) = NumberCell(number, decimals);
}

void Table::Clear() { m_cells = {}; }

void Table::ClearColumn(int column) {
    for (int row = 0; row < m_rows; ++row)
        At(row, column) = {};
}

void Table::CopyColumn(int from, int to) {
    for (int row = 0; row < m_rows; ++row)
        At(row, to) = Cell(At(row, from));
}

void Table::MoveColumn(int from, int to) {
    if (from == to)
        return;
    CopyColumn(from, to);
    ClearColumn(from);
}

bool Table::IsEmptyColumn(int column) const {
    for (int row = 0; row < m_rows; ++row) {
        if (!Stored(row, column).Text().empty())
            return false;
    }
    return true;
}

}  // namespace tavrelo::mechanics::points
