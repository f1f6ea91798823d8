#include "qt/grid_table.h"

#include <QApplication>
#include <QBrush>

#include "qt/flat_parts.h"
#include "qt/fonts.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

Qt::Alignment ToQt(window::Alignment alignment) {
    switch (alignment) {
        case window::Alignment::Center:
            return Qt::AlignCenter;
        case window::Alignment::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case window::Alignment::Left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

bool GridTable::HasLookColors(int row, int col) const {
    return m_grid.CellBackColor(row, col) == text::kWhite && IsDark(QApplication::palette());
}

void GridTable::Renew() {
    const int rows = std::max(m_grid.Rows() - m_grid.FixedRows(), 0);
    const int cols = std::max(m_grid.Cols() - m_grid.FixedCols(), 0);
    if (rows != m_rows || cols != m_cols) {
        beginResetModel();
        m_rows = rows;
        m_cols = cols;
        endResetModel();
        return;
    }
    if (rows > 0 && cols > 0)
        emit dataChanged(index(0, 0), index(rows - 1, cols - 1));
    if (cols > 0)
        emit headerDataChanged(Qt::Horizontal, 0, cols - 1);
    if (rows > 0)
        emit headerDataChanged(Qt::Vertical, 0, rows - 1);
}

int GridTable::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

int GridTable::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_cols; }

QVariant GridTable::data(const QModelIndex& index, int role) const {
    const int row = index.row() + m_grid.FixedRows();
    const int col = index.column() + m_grid.FixedCols();
    if (!m_grid.HasCell(row, col))
        return {};
    switch (role) {
        case Qt::DisplayRole:
            return ToQString(m_grid.Cell(row, col));
        case Qt::BackgroundRole:
            return HasLookColors(row, col) ? QVariant() : QBrush(ToQColor(m_grid.CellBackColor(row, col)));
        case Qt::ForegroundRole:
            return HasLookColors(row, col) ? QVariant() : QBrush(Qt::black);
        case Qt::TextAlignmentRole:
            return static_cast<int>(ToQt(m_grid.ColAlignment(col)));
        default:
            return {};
    }
}

QVariant GridTable::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool is_top = orientation == Qt::Horizontal;
    const int row = is_top ? 0 : section + m_grid.FixedRows();
    const int col = is_top ? section + m_grid.FixedCols() : 0;
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignCenter);
    if (role != Qt::DisplayRole || !m_grid.HasCell(row, col))
        return {};
    return ToQString(m_grid.Cell(row, col));
}

}  // namespace tavrelo::qt
