#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text/rich_text.h"

namespace tavrelo::text {

/// Marks that one rendering interprets at the most, the end mark included; what stands behind stays raw.
inline constexpr int kMarkLimit = 200;

/// The sign of a symbol name of four letters ("cruz") or of four digits that are a code of the symbol font;
/// U+0000 when unknown.
char32_t SymbolChar(std::u32string_view name);

/// The Unicode character that stands for a character typed in the symbol font (q: theta, D: Delta, -: minus).
char32_t SymbolFontCharacter(char32_t character);

/// Renders a markup text for a rich box, in one pass over its marks: / style, \ tag, ! subscript, ¡
/// superscript, ; Greek, $ bold, # symbol; a doubled mark escapes. Never fails: a malformed text ends with
/// what was rendered so far.
RichText RenderMarkup(std::string_view font_name, double font_size, std::string_view text);

/// Marks of a markup text, each one counted: at least as many as a rendering interprets.
std::size_t CountMarks(std::string_view text);

/// Escapes the marks of a text typed by the user, so that a report shows it as typed. The end mark has no
/// escape and is left out.
std::string EscapeMarks(std::string_view text);

}  // namespace tavrelo::text
