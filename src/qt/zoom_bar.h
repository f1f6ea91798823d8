#pragma once

#include <QToolButton>
#include <QWidget>
#include <functional>

namespace tavrelo::qt {

/// The quiet bar below the page, of the view alone: the zoom as a percentage, which opens a menu of zooms,
/// and the switch of the contrast look. Its buttons come a frame after the page: nothing else on the first
/// page is written in their font, and the window does not wait for it.
class ZoomBar : public QWidget {
  public:
    explicit ZoomBar(QWidget& parent);

    void ShowZoom(double zoom);
    void ShowContrast(bool is_on);
    /// Puts the bar behind a widget in the order of Tab.
    void FollowByTab(QWidget* widget);

    /// Whether the buttons are there.
    bool IsFilled() const { return !m_percentage.size().isEmpty(); }
    QToolButton& Percentage() { return m_percentage; }
    QToolButton& Contrast() { return m_contrast; }

    std::function<void(double zoom)> OnZoom;
    /// The page is to take all the room of the window.
    std::function<void()> OnFit;
    std::function<void(bool is_on)> OnContrast;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void OpenMenu();
    /// Gives the buttons their places, which depend on the widths of their texts.
    void PlaceButtons();

    QToolButton m_contrast;
    QToolButton m_percentage;
    double m_zoom = 1;
    bool m_was_painted = false;
};

}  // namespace tavrelo::qt
