#pragma once

#include <string>
#include <string_view>

#include "text/color.h"

namespace tavrelo::text {

// Fonts go by the program's own names; which family stands for each is told in FontFamily.
inline constexpr std::string_view kTextFont = "Times New Roman";
inline constexpr std::string_view kSymbolFont = "Symbol";
inline constexpr std::string_view kSmallFont = "Small Fonts";
inline constexpr std::string_view kInterfaceFont = "Interface";

/// A font as texts are drawn with it. `size` is in points; a picture at 100 % has 96 pixels an inch.
struct Font {
    std::string name{kTextFont};
    double size = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    friend bool operator==(const Font&, const Font&) = default;
};

/// The family on the machine that stands for a font name of the program.
std::string_view FontFamily(std::string_view font_name);

/// Points to pixels at 100 %.
constexpr double PixelsOf(double points) { return points * 96.0 / 72.0; }

/// Advance width of a text in pixels at 100 %. Widths come from a table of the families' advance widths, so
/// that every machine and every view measures the same.
double TextWidth(std::string_view text, const Font& font);
/// Height of a line of text in pixels at 100 %.
double TextHeight(const Font& font);
/// Distance from the top of a line of text to its base line, in pixels at 100 %.
double TextAscent(const Font& font);

}  // namespace tavrelo::text
