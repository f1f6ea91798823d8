#pragma once

#include <optional>
#include <string>
#include <vector>

#include "script.h"

namespace tavrelo::transcript {

/// One line that is not as it should be; a side that has no line at all is empty.
struct Difference {
    int line_number = 0;  // of the expected line, else of the command
    std::optional<std::string> wanted;
    std::optional<std::string> got;
};

/// The differences between what a command was expected to show and what it showed, blank lines and the blanks
/// at the end of a line left aside. An expected line "| ..." stands for the whole text of a box, or the rest
/// of it.
std::vector<Difference> Compare(const Step& step, const std::vector<std::string>& shown);

}  // namespace tavrelo::transcript
