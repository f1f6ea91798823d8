#pragma once

#include <string>
#include <string_view>

namespace tavrelo::text {

// The single-byte code page Windows-1252, in which the help files are written.

std::string FromCodePage(std::string_view bytes);
/// A character that the code page lacks becomes "?".
std::string ToCodePage(std::string_view text);

}  // namespace tavrelo::text
