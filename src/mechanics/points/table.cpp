#include "mechanics/points/table.h"

#include <utility>

#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::points {
namespace {

constexpr std::string_view kCellCharacters = "0123456789.+-txyv*/ ";
constexpr std::string_view kLineEnd = "\r\n";

Cell TextCell(std::string shown) {
    if (shown.empty())
        return {};
    text::Value stored(shown);
    return {std::move(stored), std::move(shown)};
}

}  // namespace

Cell NumberCell(double number, int decimals) { return {number, text::RoundedText(number, decimals)}; }

bool IsCellCharacter(char character) { return kCellCharacters.find(character) != std::string_view::npos; }

Cell WithTyped(const Cell& cell, char character) {
    return IsCellCharacter(character) ? TextCell(cell.shown + character) : cell;
}

Cell WithoutLast(const Cell& cell) {
    if (cell.shown.empty())
        return cell;
    std::u32string characters = text::ToCodePoints(cell.shown);
    characters.pop_back();
    return TextCell(text::ToUtf8(characters));
}

Cell PastedCell(std::string_view clipboard, int decimals) {
    std::string content = text::Trim(clipboard);
    if (content.ends_with(kLineEnd))
        content = text::Trim(std::string_view(content).substr(0, content.size() - kLineEnd.size()));
    Cell cell = TextCell(content);
    if (text::IsNum(content))
        cell.shown = text::RoundedText(text::ToNumber(content), decimals);
    return cell;
}

Cell Hidden(const Cell& cell) { return {cell.stored, {}}; }

std::string CopiedText(const Cell& cell) { return cell.stored.Text(); }

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
