#pragma once

#include "text/color.h"

namespace tavrelo::text {

/// The least contrast at which a text of usual size is held to be readable (WCAG 2.1, criterion 1.4.3).
inline constexpr double kReadableContrast = 4.5;
/// The least contrast at which a line or a frame is held to be seen (WCAG 2.1, criterion 1.4.11).
inline constexpr double kVisibleContrast = 3;

/// The brightness of a colour as the eye weighs it, from 0 (black) to 1 (white): the relative luminance of
/// WCAG 2.1.
double Luminance(Color color);

/// How far two colours stand apart, from 1 (the same brightness) to 21 (black on white).
double ContrastRatio(Color a, Color b);

/// Whether black texts read worse than white ones on a background.
bool IsDark(Color background);

/// The colour for a text on a background: itself when it can be read there, else the nearest shade of the
/// same hue that can, darker on a light background and lighter on a dark one.
Color ReadableOn(Color text, Color background);
/// The same for a line or a frame.
Color VisibleOn(Color line, Color background);

}  // namespace tavrelo::text
