#include "frame/writer.h"

#include "text/markup.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kRecordEnd = "-----\r\n";
constexpr int kResultsTab = 0;

}  // namespace

void WriteMarkup(window::Form1& form, std::string_view font_name, double font_size, std::string_view text) {
    form.rtbHold.SetContent(text::RenderMarkup(font_name, font_size, text));
}

void WriteLines(window::Form1& form, window::RichTextBox& target, std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append(kLineEnd);
    WriteMarkup(form, text::kTextFont, kReportFontSize, text);
    const bool is_report = &target == &form.rtbSolve || &target == &form.rtbCalc;
    if (&target == &form.rtbSolve)
        target.AppendContent(form.rtbHold.Content());
    else
        target.SetContent(form.rtbHold.Content());
    if (!is_report)
        return;
    form.tabCalc.SetCurrent(kResultsTab);
    form.rtbHold.AppendContent(text::PlainRichText(kRecordEnd, text::kTextFont, kReportFontSize));
    form.rtbReg.AppendContent(form.rtbHold.Content());
}

void WriteLines(window::Form1& form, window::RichTextBox& target, std::initializer_list<std::string> lines) {
    WriteLines(form, target, std::span(lines.begin(), lines.size()));
}

void AppendToLog(window::Form1& form, std::string_view text) {
    form.rtbReg.AppendContent(text::PlainRichText(text, text::kTextFont, kReportFontSize));
}

}  // namespace tavrelo::frame
