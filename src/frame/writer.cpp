#include "frame/writer.h"

#include <algorithm>
#include <iterator>

#include "text/markup.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kRecordEnd = "-----\r\n";
constexpr int kResultsTab = 0;

std::size_t MarksOf(const Lines& lines) {
    std::size_t marks = 1;  // the end mark
    for (const std::string& line : lines)
        marks += text::CountMarks(line);
    return marks;
}

/// The paragraph as it is, or line by line when one rendering does not take it.
std::vector<Lines> Divided(const Lines& paragraph) {
    if (MarksOf(paragraph) <= text::kMarkLimit)
        return {paragraph};
    std::vector<Lines> lines;
    for (const std::string& line : paragraph)
        lines.push_back({line});
    return lines;
}

}  // namespace

const text::RichText& WriteMarkup(window::Form1& form, std::string_view font_name, double font_size,
                                  std::string_view text) {
    auto& hold = form.Get<window::RichTextBox>("rtbHold");
    hold.SetContent(text::RenderMarkup(font_name, font_size, text));
    return hold.Content();
}

void WriteLines(window::Form1& form, window::RichTextBox& target, std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append(kLineEnd);
    const text::RichText& report = WriteMarkup(form, text::kTextFont, kReportFontSize, text);
    const ReportControls controls{form};
    if (&target == &controls.rtbSolve)
        target.AppendContent(report);
    else
        target.SetContent(report);
    if (&target != &controls.rtbSolve && &target != &controls.rtbCalc)
        return;
    controls.tabCalc.SetCurrent(kResultsTab);
    controls.rtbHold.AppendContent(text::PlainRichText(kRecordEnd, text::kTextFont, kReportFontSize));
    controls.rtbReg.AppendContent(controls.rtbHold.Content());
}

void WriteLines(window::Form1& form, window::RichTextBox& target, std::initializer_list<std::string> lines) {
    WriteLines(form, target, std::span(lines.begin(), lines.size()));
}

std::vector<Lines> Portions(std::span<const Lines> paragraphs) {
    std::vector<Lines> portions;
    for (const Lines& paragraph : paragraphs)
        for (const Lines& part : Divided(paragraph)) {
            // Each of the two counts the end mark; joined they need it once, so the test leaves one mark to
            // spare.
            if (!portions.empty() && MarksOf(portions.back()) + MarksOf(part) <= text::kMarkLimit)
                std::ranges::copy(part, std::back_inserter(portions.back()));
            else
                portions.push_back(part);
        }
    return portions;
}

void WritePortions(window::Form1& form, window::RichTextBox& target, std::span<const Lines> paragraphs) {
    const window::ChangeBatch target_batch(target);
    const window::ChangeBatch log_batch(form.Get<window::RichTextBox>("rtbReg"));
    for (const Lines& portion : Portions(paragraphs))
        WriteLines(form, target, portion);
}

void AppendToLog(window::Form1& form, std::string_view text) {
    form.Get<window::RichTextBox>("rtbReg").AppendContent(
        text::PlainRichText(text, text::kTextFont, kReportFontSize));
}

}  // namespace tavrelo::frame
