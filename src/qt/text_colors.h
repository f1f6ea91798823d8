#pragma once

#include <QColor>

#include "text/color.h"

namespace tavrelo::qt {

/// How the view shows the colours of texts: as the program gives them, or in shades that stand out from what
/// is behind them. Lines, arrows and areas keep their colours in both.
enum class TextLook { Told, Readable };

inline text::Color ToColor(const QColor& color) { return {color.rgb() & 0xffffff}; }

/// The colour in which a text is shown on a background. On a dark one, which the program's own colours are
/// not made for, it can always be read.
text::Color ShownOn(text::Color background, text::Color text, TextLook look);

}  // namespace tavrelo::qt
