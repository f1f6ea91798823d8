#pragma once

#include <QWidget>
#include <functional>

#include "window/controls.h"

namespace tavrelo::qt {

/// A window of the model on the desktop: a page of the model's size times the zoom, in the middle of the
/// frame.
class FormWindow : public QWidget {
  public:
    FormWindow(window::Window& model, QWidget* parent, Qt::WindowFlags flags);

    /// The widget whose children are the window's controls.
    QWidget& Page() { return m_page; }

    /// Title, visibility and pointer.
    void ShowState(int pointer);
    /// Font and size of the page.
    void ShowZoom(double zoom);

    /// The size of the page at a zoom.
    QSize SizeAt(double zoom) const;
    /// The largest zoom at which the page fits into that size.
    double ZoomFitting(const QSizeF& size) const;

    /// The frame was resized.
    std::function<void()> OnResize;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void PlacePage();

    window::Window& m_model;
    QWidget m_page;
};

}  // namespace tavrelo::qt
