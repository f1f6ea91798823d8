#include "window/cell_typing.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::window {
namespace {

constexpr char32_t kFirstPrintable = 32;
constexpr char32_t kDeleteCharacter = 127;

bool IsPrintable(char32_t character) { return character >= kFirstPrintable && character != kDeleteCharacter; }

bool IsAllowed(const CellRules& rules, char32_t character) {
    return rules.allowed.empty() || rules.allowed.find(character) != std::u32string_view::npos;
}

/// The current cell takes a content; `text` is what it shows of it.
void Give(Grid& grid, const CellRules& rules, const std::string& content, std::string text) {
    const CellPlace place{grid.Row(), grid.Col()};
    grid.SetCell(place.row, place.col, std::move(text));
    if (rules.on_content)
        rules.on_content(place, content);
}

void Give(Grid& grid, const CellRules& rules, const std::string& text) { Give(grid, rules, text, text); }

void Copy(const Grid& grid, const CellRules& rules, Clipboard& clipboard) {
    const CellPlace place{grid.Row(), grid.Col()};
    clipboard.SetText(rules.content_of ? rules.content_of(place) : grid.Cell(place.row, place.col));
}

std::string_view WithoutLineEnd(std::string_view text) {
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    return text;
}

void Paste(Grid& grid, const CellRules& rules, const Clipboard& clipboard) {
    const std::string trimmed = text::Trim(clipboard.Text());
    const std::string content = text::Trim(WithoutLineEnd(trimmed));
    Give(grid, rules, content, rules.shown ? rules.shown(content) : content);
}

/// A selection dragged from a heading leaves the heading as the current cell.
bool IsInHeadings(const Grid& grid) { return grid.Row() < grid.FixedRows() || grid.Col() < grid.FixedCols(); }

}  // namespace

bool TypeIntoCell(Grid& grid, const CellRules& rules, char32_t character) {
    if (!grid.HasCell(grid.Row(), grid.Col()) || IsInHeadings(grid))
        return false;
    std::u32string text = text::ToCodePoints(grid.Cell(grid.Row(), grid.Col()));
    if (character == kBackspaceCharacter && !text.empty())
        text.pop_back();
    else if (!IsPrintable(character))
        return false;
    else if (IsAllowed(rules, character))
        text += character;
    else
        return true;
    Give(grid, rules, text::ToUtf8(text));
    return true;
}

bool EditCell(Grid& grid, const CellRules& rules, Clipboard& clipboard, const KeyStroke& stroke) {
    if (!grid.HasCell(grid.Row(), grid.Col()) || IsInHeadings(grid))
        return false;
    if (stroke.key == Key::Delete) {
        Give(grid, rules, "");
        return true;
    }
    switch (CtrlLetter(stroke)) {
        case U'c':
            Copy(grid, rules, clipboard);
            return true;
        case U'x':
            Copy(grid, rules, clipboard);
            Give(grid, rules, "");
            return true;
        case U'v':
            Paste(grid, rules, clipboard);
            return true;
        default:
            return false;
    }
}

std::optional<std::string> TextOfBlock(const Grid& grid) {
    const CellBlock& block = grid.Selection();
    bool has_text = false;
    std::string text;
    for (int row = std::max(block.first_row, 0); row <= block.last_row; ++row) {
        text += row > block.first_row ? "\n" : "";
        for (int col = std::max(block.first_col, 0); col <= block.last_col; ++col) {
            text += (col > block.first_col ? "\t" : "") + grid.Cell(row, col);
            has_text = has_text || !grid.Cell(row, col).empty();
        }
    }
    return has_text ? std::optional(text) : std::nullopt;
}

void EmptyCells(Grid& grid, const CellBlock& block) {
    const ChangeBatch batch(grid);
    for (int row = block.first_row; row <= block.last_row; ++row)
        for (int col = block.first_col; col <= block.last_col; ++col)
            grid.SetCell(row, col, "");
}

}  // namespace tavrelo::window
