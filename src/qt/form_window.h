#pragma once

#include <QScrollArea>
#include <QWidget>
#include <functional>

#include "qt/accessible.h"
#include "window/controls.h"

namespace tavrelo::qt {

/// Holds a page in its middle, and scrolls one that is larger than itself. The keys that scroll are left to
/// others while there is nothing to scroll.
class PageArea : public QScrollArea {
  public:
    explicit PageArea(QWidget& parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A window of the model on the desktop: a page of the model's size times the zoom, in the middle of the
/// frame or scrolled within it, and below it a bar of the view's own, if it has one.
class FormWindow : public QWidget, public TellsOfItself {
  public:
    FormWindow(window::Window& model, QWidget* parent, Qt::WindowFlags flags);

    /// The widget whose children are the window's controls.
    QWidget& Page() { return m_page; }
    /// What is below the page; the window owns it.
    void SetBar(QWidget& bar);

    /// Title, visibility and pointer.
    void ShowState(int pointer);
    /// Font and size of the page.
    void ShowZoom(double zoom);

    /// The size of the page at 100 %.
    QSizeF OwnSize() const;
    /// The size of the page at a zoom.
    QSize SizeAt(double zoom) const;
    /// The part of the screen that is left for what is inside the window's frame.
    QRect Room() const;
    /// The size for a page of that zoom and its bar, as far as the screen holds it.
    QSize SizeFor(double zoom) const;
    /// Gives the window that size and moves it into the screen.
    void ResizeFor(double zoom);

    /// A place of the page, as parts of its size, and where in the view it is seen.
    struct Anchor {
        QPointF part;
        QPointF place;
    };
    /// The place of the page that is seen at a place of the window.
    Anchor AnchorAt(const QPointF& place) const;
    /// Scrolls that place of the page to where it was seen.
    void ScrollTo(const Anchor& anchor);
    /// Scrolls so that a widget of the page is in view.
    void BringIntoView(QWidget& widget);

    QAccessibleInterface* NewAccessible() override;

    /// The frame was resized.
    std::function<void()> OnResize;
    /// It was maximised, restored or the like.
    std::function<void()> OnWindowState;
    /// The keys are about to go to the next control, or the one before.
    std::function<void()> OnTab;
    /// Escape, which no control took.
    std::function<void()> OnEscape;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void PlaceParts();

    window::Window& m_model;
    PageArea m_area;
    QWidget& m_page;
    QWidget* m_bar = nullptr;
};

}  // namespace tavrelo::qt
