#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrelo::text {

/// The code point at byte `position`, which moves behind it; an invalid byte is U+FFFD and one byte long.
/// `position` must lie inside the text.
char32_t NextCodePoint(std::string_view text, std::size_t& position);
/// Code points of a UTF-8 text; an invalid byte becomes U+FFFD.
std::u32string ToCodePoints(std::string_view text);
/// A value that is no character (a surrogate, past U+10FFFF) is written as U+FFFD.
std::string ToUtf8(std::u32string_view text);
std::string ToUtf8(char32_t character);
/// Number of characters (code points).
std::size_t CharacterCount(std::string_view text);

/// The text without the blanks (code 32 only) around it.
std::string Trim(std::string_view text);
/// Capitals: A-Z and the letters of Spanish (á to Á, ñ to Ñ, ü to Ü); all others stay.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);
/// ASCII only: for names that are compared without case.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// Every occurrence from left to right; an empty `from` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace tavrelo::text
