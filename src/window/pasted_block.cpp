#include "window/pasted_block.h"

namespace tavrelo::window {
namespace {

/// Cuts the first piece off the text, up to a separator, which goes.
std::string_view TakeUpTo(char separator, std::string_view& text) {
    const std::size_t end = text.find(separator);
    const std::string_view piece = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return piece;
}

std::vector<std::string> CellsOfLine(std::string_view line) {
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    std::vector<std::string> cells;
    bool has_more = true;
    while (has_more) {
        has_more = line.find('\t') != std::string_view::npos;
        cells.emplace_back(TakeUpTo('\t', line));
    }
    return cells;
}

}  // namespace

std::vector<std::vector<std::string>> CellsOfBlock(std::string_view text) {
    std::vector<std::vector<std::string>> rows;
    while (!text.empty())
        rows.push_back(CellsOfLine(TakeUpTo('\n', text)));
    return rows;
}

}  // namespace tavrelo::window
