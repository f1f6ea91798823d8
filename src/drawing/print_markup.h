#pragma once

#include <string_view>

#include "window/surface.h"

namespace tavrelo::drawing {

/// Prints a markup text on a surface, x from the left and y from the bottom upward: the top of the line of
/// plain characters, from which subscripts lie lower and superscripts higher. Empty font name and size 0 keep
/// the surface's font.
void PrintMarkup(window::Surface& surface, std::string_view text, double x, double y,
                 std::string_view font_name = {}, double font_size = 0);

}  // namespace tavrelo::drawing
