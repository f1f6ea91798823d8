#pragma once

#include <QProxyStyle>

#include "qt/desktop_look.h"

class QApplication;

namespace tavrelo::qt {

/// The look of all widgets: flat, light or dark, with good contrast. Measures grow with the font of the
/// widget, so that the window can be zoomed.
class Look : public QProxyStyle {
  public:
    explicit Look(bool is_dark = false);

    QPalette standardPalette() const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

  private:
    bool m_is_dark;
};

/// Gives the application the light or the dark look.
void UseLook(bool is_dark);

/// Gives the application the look that goes with the desktop's, the interface font and Spanish texts in the
/// toolkit's own menus and boxes. Tells what the desktop asks for.
DesktopLook SetUpApplication(QApplication& application);

}  // namespace tavrelo::qt
