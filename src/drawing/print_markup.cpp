#include "drawing/print_markup.h"

#include "text/picture_markup.h"

namespace tavrelo::drawing {

void PrintMarkup(window::Surface& surface, std::string_view markup, double x, double y,
                 std::string_view font_name, double font_size) {
    text::Font font = surface.CurrentFont;
    if (!font_name.empty())
        font.name = font_name;
    if (font_size > 0)
        font.size = font_size;
    double advance = 0;
    std::vector<text::PlacedRun> runs = text::LayOutMarkup(markup, font, surface.ForeColor, &advance);
    const double top = surface.FromBottom(y);
    if (!runs.empty())
        surface.Draw(window::TextOp{x, top, std::move(runs)});
    surface.CurrentX = x + advance;
    surface.CurrentY = top;
}

}  // namespace tavrelo::drawing
