#pragma once

#include <QLabel>
#include <QTableView>

#include "qt/accessible_grid.h"
#include "qt/grid_table.h"

namespace tavrelo::qt {

/// Shows a grid of the model. Mouse and keys go to the model, which alone knows the current cell and the
/// chosen block.
class GridView : public QTableView, public TellsOfItself {
  public:
    GridView(window::Grid& model, QWidget& parent);

    void ShowCells(double zoom);
    void ShowSizes(double zoom);
    void ShowChoice();

    /// The middle of a cell of the model that is no heading, scrolled into view; in the viewport.
    QPoint BringIntoView(int row, int col);

    // For readers of the screen.
    QAccessibleInterface* NewAccessible() override { return new AccessibleGrid(*this); }
    bool HasPlace(const TablePlace& place) const;
    /// The place of the current cell; row 0 when there is none.
    TablePlace CurrentPlace() const;
    /// The place under a point of the screen.
    TablePlace PlaceAt(const QPoint& on_screen) const;
    /// The number of a place among the children of the table.
    int IndexOf(const TablePlace& place) const;
    QString NameOf(const TablePlace& place) const;
    QString ContentOf(const TablePlace& place) const;
    bool IsChosen(const TablePlace& place) const;
    bool IsInView(const TablePlace& place) const;
    QRect RectOnScreen(const TablePlace& place) const;

  protected:
    /// A text that its cell cuts short is told whole under the pointer.
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    struct Cell {
        int row, col;
        bool operator==(const Cell&) const = default;
    };
    static constexpr Cell kNoCell{-1, -1};

    /// The cell of the model at a place of the viewport; the nearest one for a place beside the cells.
    Cell CellAt(const QPoint& place) const;
    QModelIndex IndexOf(int row, int col) const;
    // Cells that would only just not stand all in view are made a little smaller. Edges of columns are
    // scaled, not their widths, so that no error adds up. Each answers the pixels of the first row or column.
    int ShowRows(double pixels_per_twip);
    int ShowColumns(double pixels_per_twip);
    void ShowCorner(const QSize& size);
    /// What is painted behind a cell.
    QColor GroundOf(const QModelIndex& cell) const;
    bool TakeKey(const QKeyEvent& event);
    /// The keys for what the mouse does to the current cell beyond choosing it.
    bool TakeMouseKey(const QKeyEvent& event);
    void CopyBlock() const;
    Cell ToCell(const TablePlace& place) const;
    QRect RectOf(const TablePlace& place) const;
    /// Tells readers of the screen where the keys are now.
    void TellCurrentCell();
    /// Tells them that the content of the current cell is another one than they were told.
    void TellNewContent();

    window::Grid& m_grid;
    GridTable m_table;
    QLabel m_corner;
    bool m_is_dragging = false;
    struct Told {
        TablePlace place;
        QString name;
    };
    Told m_told;  // of the current cell
};

}  // namespace tavrelo::qt
