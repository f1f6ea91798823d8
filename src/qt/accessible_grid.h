#pragma once

#include <map>
#include <utility>

#include "qt/accessible.h"

namespace tavrelo::qt {

class GridView;

/// A place of a table as the toolkit counts its children: row 0 and column 0 are the headings, whether the
/// table shows them or not.
struct TablePlace {
    int row = 0;
    int col = 0;

    bool IsHeading() const { return row == 0 || col == 0; }
    // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler makes of it compares with 0.
    friend auto operator<=>(const TablePlace&, const TablePlace&) = default;
};

/// A table for readers of the screen. Each cell says its headings and its content.
class AccessibleGrid : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccessibleGrid(GridView& view);
    ~AccessibleGrid() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // Rows and columns of the interface count without the headings.
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    // A block is chosen by keys and mouse alone.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

  private:
    QAccessibleInterface* CellAt(const TablePlace& place) const;
    void ForgetCells();

    GridView& m_view;
    mutable std::map<TablePlace, QAccessible::Id> m_cells;  // made when asked for
};

}  // namespace tavrelo::qt
