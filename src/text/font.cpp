#include "text/font.h"

#include "text/font_widths.h"
#include "text/utf8.h"

namespace tavrelo::text {
namespace {

// The faces of FaceTable, in its order.
enum class Face : std::size_t {
    Serif,
    SerifBold,
    SerifItalic,
    SerifBoldItalic,
    Sans,
    SansBold,
    Narrow,
    NarrowBold
};

Face FaceOf(const Font& font) {
    if (font.name == kInterfaceFont)
        return font.bold ? Face::SansBold : Face::Sans;
    if (font.name == kSmallFont)
        return font.bold ? Face::NarrowBold : Face::Narrow;
    if (font.italic)
        return font.bold ? Face::SerifBoldItalic : Face::SerifItalic;
    return font.bold ? Face::SerifBold : Face::Serif;
}

const FaceWidths& WidthsOf(const Font& font) { return FaceTable()[static_cast<std::size_t>(FaceOf(font))]; }

int AdvanceOf(const FaceWidths& face, char32_t character) {
    constexpr int kUnknown = static_cast<int>(kFontUnits) / 2;
    if (character < U' ')
        return 0;
    for (const WidthRange& range : face.ranges)
        if (character >= range.first && character < range.first + range.widths.size())
            return range.widths[character - range.first];
    return kUnknown;
}

}  // namespace

std::string_view FontFamily(std::string_view font_name) {
    if (font_name == kInterfaceFont)
        return "Liberation Sans";
    if (font_name == kSmallFont)
        return "Liberation Sans Narrow";
    return "Liberation Serif";
}

double TextWidth(std::string_view text, const Font& font) {
    const FaceWidths& face = WidthsOf(font);
    int units = 0;
    for (const char32_t character : text::ToCodePoints(text))
        units += AdvanceOf(face, character);
    return units * PixelsOf(font.size) / kFontUnits;
}

double TextHeight(const Font& font) {
    const FaceWidths& face = WidthsOf(font);
    return (face.ascent + face.descent) * PixelsOf(font.size) / kFontUnits;
}

double TextAscent(const Font& font) { return WidthsOf(font).ascent * PixelsOf(font.size) / kFontUnits; }

}  // namespace tavrelo::text
