#pragma once

#include <QWidget>
#include <vector>

#include "qt/binding.h"

namespace tavrelo::qt {

/// Paints a picture's recording at the zoom in force and tells the model what the mouse does on it.
class PictureView : public QWidget {
  public:
    PictureView(window::Picture& model, QWidget& parent, const ViewContext& context);

    /// With a menu to copy and save the picture, the right button is the menu's; without it, the model's.
    void SetMenu(bool has_menu);
    /// Takes the picture's own pointer, or the window's.
    void ShowPointer();
    /// The current cell is another one, or in another state.
    void ShowCells();

    // The cells, as a reader of the screen asks for them; by their index.
    std::vector<window::PictureCell> Cells() const { return m_picture.Cells(); }
    int CellCount() const { return m_picture.HasCells() ? static_cast<int>(Cells().size()) : 0; }
    int CurrentCell() const { return m_picture.CurrentCell(); }
    QRect CellOnScreen(int cell) const;
    void FocusCell(int cell);
    void PressCell(int cell);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    bool IsForModel(const QMouseEvent& event) const;
    void PaintInvitation(QPainter& painter) const;
    /// A place on the widget as pixels of the picture at 100 %.
    window::Point ToPixels(const QPointF& place) const;
    /// Shows what the drawing tells at that place; takes a tip away where it tells nothing.
    void ShowTipAt(const QPointF& place, const QPoint& global);
    window::MouseStroke ToStroke(const QMouseEvent& event) const;
    /// Answers whether the key did something.
    bool TakeKey(const QKeyEvent& event);
    void ShowMenu(const QPoint& place);
    void PaintCells(QPainter& painter) const;
    void TellCurrentCell();
    void PointAt(int cell);

    window::Picture& m_picture;
    const ViewContext& m_context;
    bool m_has_menu = false;
    int m_pointed_cell = window::kNoCell;  // below the pointer
    bool m_is_pressed = false;             // by the mouse
};

}  // namespace tavrelo::qt
