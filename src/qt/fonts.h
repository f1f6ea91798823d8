#pragma once

#include <QColor>
#include <QFont>

#include "text/font.h"

namespace tavrelo::qt {

/// Size of the interface font in pixels at 100 %.
inline constexpr double kInterfacePixels = 12;

/// The machine's font for one of the program's, `scale` times its size; signs that the family lacks come from
/// a fallback. Glyphs are not fitted to the pixel grid, so that widths grow evenly with the scale.
QFont ToQFont(const text::Font& font, double scale);
/// The toolkit makes fonts of whole pixels only; a text painted with ToQFont is as large as it should be when
/// it is stretched by this factor.
double FontStretch(const text::Font& font, double scale);
/// The font of captions, cells and text boxes.
QFont InterfaceFont(double scale);
/// Its size at 100 %, in points.
double InterfacePoints();
/// Logical dots of an inch that font sizes refer to.
double ScreenDotsPerInch();

inline QColor ToQColor(text::Color color) { return QColor::fromRgb(static_cast<QRgb>(color.rgb & 0xffffff)); }

}  // namespace tavrelo::qt
