#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "window/controls.h"
#include "window/host.h"

namespace tavrelo::window {

struct CellPlace {
    int row;
    int col;
};

/// How a table takes what is typed into its cells. A table whose cells hold more than they show (all digits
/// of a computed number, say) says in the last three members what it keeps; the others leave them empty.
struct CellRules {
    std::u32string_view allowed = {};  // empty: every printable character

    /// The user gave a cell this content.
    std::function<void(CellPlace, const std::string& content)> on_content = {};
    /// What copying takes from a cell; the shown text when empty.
    std::function<std::string(CellPlace)> content_of = {};
    /// How a pasted content is shown; as it stands when empty.
    std::function<std::string(const std::string& content)> shown = {};
};

/// A typed character for the current cell: one that is allowed is appended to its text, the backspace takes
/// the last one away. False when the key means nothing here. A printable character that is not allowed is
/// consumed and does nothing.
bool TypeIntoCell(Grid& grid, const CellRules& rules, char32_t character);

/// Delete, and Ctrl with C, X or V, on the current cell; false for any other key. A pasted text is taken
/// without the blanks around it and without its last line end.
bool EditCell(Grid& grid, const CellRules& rules, Clipboard& clipboard, const KeyStroke& stroke);

/// What the copying keys take of a table that has nothing else to do with them: the texts of the selected
/// block, cells parted by tabs and rows by line ends. Nothing when no cell of it holds a text.
std::optional<std::string> TextOfBlock(const Grid& grid);

/// Every cell of the block becomes empty; the view is told once.
void EmptyCells(Grid& grid, const CellBlock& block);

}  // namespace tavrelo::window
