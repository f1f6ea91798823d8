#pragma once

#include <string_view>

namespace tavrelo::text {

/// The Spanish name of a Greek letter; empty for any other character.
std::string_view GreekName(char32_t letter);

/// How a sign is read between quantities, "+" as "más"; empty for a sign that is read as it stands.
std::string_view SignName(char32_t sign);

/// The Spanish name of a function written in short ("sen" is "seno"); empty for any other word.
std::string_view FunctionName(std::u32string_view word);

}  // namespace tavrelo::text
