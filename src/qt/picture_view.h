#pragma once

#include <QWidget>

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

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    bool IsForModel(const QMouseEvent& event) const;
    window::MouseStroke ToStroke(const QMouseEvent& event) const;
    void CopyImage() const;
    void SaveImage();

    window::Picture& m_picture;
    const ViewContext& m_context;
    bool m_has_menu = false;
};

}  // namespace tavrelo::qt
