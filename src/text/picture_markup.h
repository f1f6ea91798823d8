#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/font.h"

namespace tavrelo::text {

/// One run of a text, its top left corner relative to that of the text, pixels at 100 %.
struct PlacedRun {
    double dx, dy;
    std::string text;
    Font font;
    Color color;
};

/// Renders a markup text for pictures into one list of runs, placed relative to the pen; the marks are ; ! ¡
/// $ _ #, without escapes. `size` is the size in force, `advance` receives the width in pixels.
std::vector<PlacedRun> LayOutMarkup(std::string_view text, const Font& font, Color color,
                                    double* advance = nullptr);

/// The width that the markup text covers in a picture, in pixels.
double MarkupWidth(std::string_view text, const Font& font);

}  // namespace tavrelo::text
