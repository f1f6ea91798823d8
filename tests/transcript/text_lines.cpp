#include "text_lines.h"

namespace tavrelo::transcript {

std::vector<std::string> TextLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::string_view WithoutTrailingBlanks(std::string_view line) {
    const std::size_t last = line.find_last_not_of(" \t");
    return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::vector<std::string> SignificantLines(const std::vector<std::string>& lines) {
    std::vector<std::string> significant;
    for (const std::string& line : lines)
        if (const std::string_view kept = WithoutTrailingBlanks(line); !kept.empty())
            significant.emplace_back(kept);
    return significant;
}

}  // namespace tavrelo::transcript
