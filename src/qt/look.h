#pragma once

#include <QProxyStyle>

class QApplication;

namespace tavrelo::qt {

/// The look of all widgets: light, flat, with good contrast. Measures grow with the font of the widget, so
/// that the window can be zoomed.
class Look : public QProxyStyle {
  public:
    Look();

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
};

/// Gives the application the look, the interface font and Spanish texts in the toolkit's own menus and boxes.
void SetUpApplication(QApplication& application);

}  // namespace tavrelo::qt
