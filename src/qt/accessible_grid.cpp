#include "qt/accessible_grid.h"

#include <QHeaderView>
#include <QPointer>

#include "qt/grid_view.h"
#include "qt/text.h"
#include "window/cell_names.h"

namespace tavrelo::qt {
namespace {

/// A cell or a heading. It reads the table anew whenever it is asked, so it is never old.
class AccessibleCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
  public:
    AccessibleCell(GridView& view, const TablePlace& place) : m_view(&view), m_place(place) {}

    const TablePlace& Place() const { return m_place; }

    bool isValid() const override { return m_view && m_view->HasPlace(m_place); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return isValid() ? m_view->RectOnScreen(m_place) : QRect(); }
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return isValid() && m_view->IsChosen(m_place); }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return m_place.col - 1; }
    int rowIndex() const override { return m_place.row - 1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return QAccessible::queryAccessibleInterface(m_view); }

  private:
    QAccessibleInterface* Neighbour(const TablePlace& place) const;

    QPointer<GridView> m_view;
    TablePlace m_place;
};

QString AccessibleCell::text(QAccessible::Text kind) const {
    if (!isValid())
        return {};
    if (kind == QAccessible::Name)
        return m_view->NameOf(m_place);
    return kind == QAccessible::Value ? m_view->ContentOf(m_place) : QString();
}

QAccessible::Role AccessibleCell::role() const {
    if (m_place.row == 0)
        return QAccessible::ColumnHeader;
    return m_place.col == 0 ? QAccessible::RowHeader : QAccessible::Cell;
}

QAccessible::State AccessibleCell::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !m_view->isEnabled();
    state.invisible = !m_view->isVisible();
    state.offscreen = !m_view->IsInView(m_place);
    if (m_place.IsHeading())
        return state;
    const bool is_current = m_view->CurrentPlace() == m_place;
    state.focusable = true;
    state.selectable = true;
    state.selected = isSelected();
    state.active = is_current;
    state.focused = is_current && m_view->hasFocus();
    return state;
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                   : nullptr;
}

QAccessibleInterface* AccessibleCell::Neighbour(const TablePlace& place) const {
    QAccessibleInterface* grid = table();
    return grid ? grid->child(m_view->IndexOf(place)) : nullptr;
}

QList<QAccessibleInterface*> AccessibleCell::columnHeaderCells() const {
    return m_place.row == 0 ? QList<QAccessibleInterface*>() : QList{Neighbour({0, m_place.col})};
}

QList<QAccessibleInterface*> AccessibleCell::rowHeaderCells() const {
    return m_place.col == 0 ? QList<QAccessibleInterface*>() : QList{Neighbour({m_place.row, 0})};
}

}  // namespace

AccessibleGrid::AccessibleGrid(GridView& view) : QAccessibleWidget(&view, QAccessible::Table), m_view(view) {}

AccessibleGrid::~AccessibleGrid() { ForgetCells(); }

void AccessibleGrid::ForgetCells() {
    for (const auto& [place, id] : std::exchange(m_cells, {}))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessibleGrid::CellAt(const TablePlace& place) const {
    if (!m_view.HasPlace(place))
        return nullptr;
    if (const auto known = m_cells.find(place); known != m_cells.end())
        return QAccessible::accessibleInterface(known->second);
    auto* cell = new AccessibleCell(m_view, place);
    m_cells[place] = QAccessible::registerAccessibleInterface(cell);
    return cell;
}

int AccessibleGrid::childCount() const { return (rowCount() + 1) * (columnCount() + 1); }

QAccessibleInterface* AccessibleGrid::child(int index) const {
    const int across = columnCount() + 1;
    return index < 0 ? nullptr : CellAt({index / across, index % across});
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const AccessibleCell*>(child);
    return cell ? m_view.IndexOf(cell->Place()) : -1;
}

QAccessibleInterface* AccessibleGrid::childAt(int x, int y) const { return CellAt(m_view.PlaceAt({x, y})); }

QAccessibleInterface* AccessibleGrid::focusChild() const {
    // While no cell is current the table itself has the keys.
    const TablePlace place = m_view.CurrentPlace();
    return m_view.hasFocus() && !place.IsHeading() ? CellAt(place) : nullptr;
}

void* AccessibleGrid::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleGrid::cellAt(int row, int column) const {
    return CellAt({row + 1, column + 1});
}

int AccessibleGrid::selectedCellCount() const { return static_cast<int>(selectedCells().size()); }

QList<QAccessibleInterface*> AccessibleGrid::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (int row = 1; row <= rowCount(); ++row)
        for (int col = 1; col <= columnCount(); ++col)
            if (m_view.IsChosen({row, col}))
                cells << CellAt({row, col});
    return cells;
}

QString AccessibleGrid::columnDescription(int column) const { return m_view.NameOf({0, column + 1}); }

QString AccessibleGrid::rowDescription(int row) const { return m_view.NameOf({row + 1, 0}); }

int AccessibleGrid::selectedColumnCount() const { return static_cast<int>(selectedColumns().size()); }

int AccessibleGrid::selectedRowCount() const { return static_cast<int>(selectedRows().size()); }

int AccessibleGrid::columnCount() const { return m_view.model()->columnCount(); }

int AccessibleGrid::rowCount() const { return m_view.model()->rowCount(); }

QList<int> AccessibleGrid::selectedColumns() const {
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column)
        if (isColumnSelected(column))
            columns << column;
    return columns;
}

QList<int> AccessibleGrid::selectedRows() const {
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row)
        if (isRowSelected(row))
            rows << row;
    return rows;
}

bool AccessibleGrid::isColumnSelected(int column) const {
    return rowCount() > 0 && m_view.IsChosen({1, column + 1}) && m_view.IsChosen({rowCount(), column + 1});
}

bool AccessibleGrid::isRowSelected(int row) const {
    return columnCount() > 0 && m_view.IsChosen({row + 1, 1}) && m_view.IsChosen({row + 1, columnCount()});
}

void AccessibleGrid::modelChange(QAccessibleTableModelChangeEvent* event) {
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
        ForgetCells();
}

}  // namespace tavrelo::qt
