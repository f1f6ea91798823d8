#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::transcript {

/// The lines of a text, whose line ends are "\n" or "\r\n". A line end at the very end begins no further
/// line.
std::vector<std::string> TextLines(std::string_view text);

/// Without the blanks at its end.
std::string_view WithoutTrailingBlanks(std::string_view line);

/// What counts when shown lines are compared: no blank line, no blanks at the end of a line.
std::vector<std::string> SignificantLines(const std::vector<std::string>& lines);

}  // namespace tavrelo::transcript
