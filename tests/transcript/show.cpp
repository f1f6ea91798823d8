#include "show.h"

#include "text/number_text.h"
#include "text_lines.h"
#include "window/pointer.h"

namespace tavrelo::transcript {
namespace {

template <class Number>
std::string Joined(std::initializer_list<Number> numbers) {
    std::string text;
    for (const Number number : numbers)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

std::string RowLine(std::span<const std::string> cells) {
    while (!cells.empty() && cells.back().empty())
        cells = cells.first(cells.size() - 1);
    std::string line;
    for (const std::string& cell : cells)
        line += (&cell == cells.data() ? "" : " | ") + cell;
    return line;
}

std::string Flags(const text::Font& font) {
    std::string flags;
    if (font.bold)
        flags += 'b';
    if (font.underline)
        flags += 'u';
    if (font.italic)
        flags += 'i';
    return flags.empty() ? "-" : flags;
}

/// What RunLines tells of a run behind its text.
std::string LookText(const text::Run& run) {
    return run.font.name + " " + text::NumberToText(run.font.size) + " " + Flags(run.font) + " " +
           ColorText(run.color) + " " + std::to_string(run.offset);
}

}  // namespace

std::string TruthText(bool value) { return value ? "yes" : "no"; }

std::string ColorText(text::Color color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4)
        text += kDigits[(color.rgb >> shift) & 0xf];
    return text;
}

std::string NumbersText(std::initializer_list<std::size_t> numbers) { return Joined(numbers); }

std::string NumbersText(std::initializer_list<int> numbers) { return Joined(numbers); }

std::vector<std::string> GridLines(const std::vector<std::vector<std::string>>& cells) {
    std::vector<std::string> lines;
    for (const std::vector<std::string>& row : cells)
        lines.push_back(RowLine(row));
    return lines;
}

std::vector<std::string> ListLines(const std::vector<ListRow>& rows) {
    std::vector<std::string> lines;
    for (const ListRow& row : rows)
        lines.push_back((row.chosen ? "* " : "  ") + row.text);
    return lines;
}

std::vector<std::string> RichTextLines(const std::vector<text::Run>& runs) {
    std::string text;
    for (const text::Run& run : runs)
        text += run.text;
    return TextLines(text);
}

std::vector<std::string> RunLines(const std::vector<text::Run>& runs) {
    const text::RichText joined(runs);
    std::vector<std::string> lines;
    for (const text::Run& run : joined.Runs())
        for (const std::string& piece : TextLines(run.text))
            if (!piece.empty())
                lines.push_back("\"" + piece + "\" " + LookText(run));
    return lines;
}

std::string PointerText(int shape) {
    switch (shape) {
        case window::kPointerDefault:
            return "default";
        case window::kPointerBusy:
            return "busy";
        case window::kPointerCross:
            return "cross";
        default:
            return "shape " + std::to_string(shape);
    }
}

std::vector<std::string> PageLines(std::span<const window::PrintedPage> pages) {
    std::vector<std::string> lines;
    for (std::size_t k = 0; k < pages.size(); ++k) {
        lines.push_back("page " + std::to_string(k + 1));
        for (const window::PrintedLine& line : pages[k].lines)
            lines.push_back(line.Text());
    }
    return lines;
}

std::vector<std::string> ClipboardLines(const ClipboardContent& content) {
    if (content.width > 0)
        return {"image " + std::to_string(content.width) + " x " + std::to_string(content.height)};
    return TextLines(content.text);
}

}  // namespace tavrelo::transcript
