#include <algorithm>
#include <utility>

#include "numeric/checked.h"
#include "window/controls.h"

namespace tavrelo::window {
namespace {

void Fire(const Handler<void()>& event) {
    if (event)
        event();
}

CellBlock Ordered(const CellBlock& block) {
    return {std::min(block.first_row, block.last_row), std::min(block.first_col, block.last_col),
            std::max(block.first_row, block.last_row), std::max(block.first_col, block.last_col)};
}

struct Step {
    int row;
    int col;
};

Step StepOf(Key key) {
    switch (key) {
        case Key::Left:
            return {0, -1};
        case Key::Right:
            return {0, 1};
        case Key::Up:
            return {-1, 0};
        case Key::Down:
            return {1, 0};
        default:
            return {0, 0};
    }
}

}  // namespace

void Grid::Arrange(int rows, int cols, int fixed_rows, int fixed_cols) {
    m_columns.resize(static_cast<std::size_t>(cols));
    m_cells.assign(static_cast<std::size_t>(rows), std::vector<CellData>(static_cast<std::size_t>(cols)));
    m_fixed_rows = fixed_rows;
    m_fixed_cols = fixed_cols;
    m_row = m_col = -1;
    m_selection = m_dragged = {-1, -1, -1, -1};
    Notify(Change::Content);
}

void Grid::AddRow(const std::vector<std::string>& cells) {
    std::vector<CellData> row(m_columns.size());
    for (std::size_t col = 0; col < std::min(cells.size(), row.size()); ++col)
        row[col].text = cells[col];
    m_cells.push_back(std::move(row));
    Notify(Change::Content);
}

void Grid::RemoveRow(int row) {
    if (row < 0 || row >= Rows())
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, Name());
    m_cells.erase(m_cells.begin() + row);
    if (m_row >= Rows())
        SetCurrent(-1, -1);
    Notify(Change::Content);
}

void Grid::RemoveNumberedRow(int row) {
    const int last = Rows() - 1;
    for (int moved = row; moved < last; ++moved)
        for (int col = 1; col < Cols(); ++col)
            SetCell(moved, col, Cell(moved + 1, col));
    RemoveRow(last);
}

bool Grid::HasCell(int row, int col) const { return row >= 0 && row < Rows() && col >= 0 && col < Cols(); }

const Grid::CellData& Grid::At(int row, int col) const {
    if (!HasCell(row, col))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, Name());
    return m_cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

Grid::CellData& Grid::At(int row, int col) {
    return const_cast<CellData&>(std::as_const(*this).At(row, col));
}

const std::string& Grid::Cell(int row, int col) const { return At(row, col).text; }

void Grid::SetCell(int row, int col, std::string text) {
    Set(At(row, col).text, std::move(text), Change::Content);
}

text::Color Grid::CellBackColor(int row, int col) const { return At(row, col).back_color; }

void Grid::SetCellBackColor(int row, int col, text::Color color) {
    Set(At(row, col).back_color, color, Change::Content);
}

const Grid::Column& Grid::ColumnAt(int col) const {
    if (col < 0 || col >= Cols())
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, Name());
    return m_columns[static_cast<std::size_t>(col)];
}

Grid::Column& Grid::ColumnAt(int col) { return const_cast<Column&>(std::as_const(*this).ColumnAt(col)); }

int Grid::ColWidth(int col) const { return ColumnAt(col).width; }

void Grid::SetColWidth(int col, int twips) { Set(ColumnAt(col).width, twips); }

Alignment Grid::ColAlignment(int col) const { return ColumnAt(col).alignment; }

void Grid::SetColAlignment(int col, Alignment alignment) { Set(ColumnAt(col).alignment, alignment); }

void Grid::SetCurrent(int row, int col) {
    Select({row, col, row, col});
    m_row = row;
    m_col = col;
    Notify(Change::Selection);
}

void Grid::Select(const CellBlock& block) {
    m_dragged = block;
    m_row = block.first_row;
    m_col = block.first_col;
    Set(m_selection, Ordered(block), Change::Selection);
}

void Grid::MoveTo(int row, int col) {
    SetCurrent(row, col);
    FireForUser([this] {
        Fire(OnEnterCell);
        Fire(OnSelChange);
    });
}

bool Grid::UserKeyDown(const KeyStroke& stroke) {
    bool consumed = false;
    FireForUser([&] { consumed = OnKeyDown && OnKeyDown(stroke); });
    return consumed;
}

bool Grid::UserKeyPress(char32_t character) {
    bool consumed = false;
    FireForUser([&] { consumed = OnKeyPress && OnKeyPress(character); });
    return consumed;
}

bool Grid::UserKeyUp(const KeyStroke& stroke) {
    bool consumed = false;
    FireForUser([&] { consumed = OnKeyUp && OnKeyUp(stroke); });
    return consumed;
}

void Grid::UserPress(int row, int col) {
    if (!HasCell(row, col) || row < m_fixed_rows || col < m_fixed_cols)
        return;
    MoveTo(row, col);
    FireForUser([&] {
        if (OnMouseDown)
            OnMouseDown(row, col);
    });
}

void Grid::UserDrag(const CellBlock& block) {
    if (!HasCell(block.first_row, block.first_col) || !HasCell(block.last_row, block.last_col))
        return;
    // A drag that begins on a heading is none.
    if (block.first_row < m_fixed_rows || block.first_col < m_fixed_cols)
        return;
    UserPress(block.first_row, block.first_col);
    CellBlock dragged = block;
    dragged.last_row = std::max(dragged.last_row, m_fixed_rows);
    dragged.last_col = std::max(dragged.last_col, m_fixed_cols);
    DragOver(dragged);
}

void Grid::UserDragTo(int row, int col) {
    if (HasCell(row, col) && m_row >= 0)
        DragOver({m_row, m_col, std::max(row, m_fixed_rows), std::max(col, m_fixed_cols)});
}

void Grid::DragOver(const CellBlock& block) {
    if (block == DraggedBlock())
        return;
    Select(block);
    FireForUser([this] { Fire(OnSelChange); });
}

void Grid::UserDblClick(int row, int col) {
    if (!HasCell(row, col) || row < m_fixed_rows || col < m_fixed_cols)
        return;
    UserPress(row, col);
    FireForUser([this] { Fire(OnDblClick); });
}

void Grid::UserNavigate(Key key, bool extend) {
    if (m_row < 0) {
        // The keys need a cell to begin with.
        if (HasCell(m_fixed_rows, m_fixed_cols))
            MoveTo(m_fixed_rows, m_fixed_cols);
        return;
    }
    const Step step = StepOf(key);
    if (extend) {
        CellBlock block = m_dragged;
        block.last_row = std::clamp(block.last_row + step.row, m_fixed_rows, Rows() - 1);
        block.last_col = std::clamp(block.last_col + step.col, m_fixed_cols, Cols() - 1);
        Select(block);
        FireForUser([this] { Fire(OnSelChange); });
        return;
    }
    MoveTo(std::clamp(m_row + step.row, m_fixed_rows, Rows() - 1),
           std::clamp(m_col + step.col, m_fixed_cols, Cols() - 1));
}

}  // namespace tavrelo::window
