#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "driver.h"

// How what stands in the window is written, the same for every driver: plain data in, lines out.

namespace tavrelo::transcript {

std::string TruthText(bool value);
/// "#rrggbb".
std::string ColorText(text::Color color);
/// Whole numbers parted by blanks.
std::string NumbersText(std::initializer_list<std::size_t> numbers);
std::string NumbersText(std::initializer_list<int> numbers);

/// One line a row, cells joined by " | ", trailing empty cells dropped.
std::vector<std::string> GridLines(const std::vector<std::vector<std::string>>& cells);
/// One line a row: "* " in front of the chosen ones, two blanks in front of the others.
std::vector<std::string> ListLines(const std::vector<ListRow>& rows);
/// The text of runs, line by line.
std::vector<std::string> RichTextLines(const std::vector<text::Run>& runs);
/// One run a line: "text" font size flags colour offset. Equal neighbours are one run; runs end at line ends.
std::vector<std::string> RunLines(const std::vector<text::Run>& runs);

/// True for a name that ShapeLines gives to a kind of operation.
bool IsShapeKind(std::string_view name);
/// One operation a line, pixels from the top left, rounded; of one kind, or of all when `kind` is empty.
/// Clearings and pieces of bitmaps are no shapes.
std::vector<std::string> ShapeLines(std::span<const window::DrawOp> operations, std::string_view kind);

/// "default", "busy", "cross", else "shape" and the number.
std::string PointerText(int shape);
/// "page" and its number in front of the lines of each page.
std::vector<std::string> PageLines(std::span<const window::PrintedPage> pages);
/// The lines of a text, or the size of an image.
std::vector<std::string> ClipboardLines(const ClipboardContent& content);

}  // namespace tavrelo::transcript
