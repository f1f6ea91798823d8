#include "shell/writer.h"

#include "shell/markup.h"

namespace tavrelo::shell {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kRecordEnd = "-----\r\n";
constexpr int kResultsTab = 0;

}  // namespace

void WriteMarkup(Form1& form, std::string_view font_name, double font_size, std::string_view text) {
    form.rtbHold.SetContent(RenderMarkup(font_name, font_size, text));
}

void WriteLines(Form1& form, RichTextBox& target, std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append(kLineEnd);
    WriteMarkup(form, kTextFont, kReportFontSize, text);
    const bool is_report = &target == &form.rtbSolve || &target == &form.rtbCalc;
    if (&target == &form.rtbSolve)
        target.AppendContent(form.rtbHold.Content());
    else
        target.SetContent(form.rtbHold.Content());
    if (!is_report)
        return;
    form.tabCalc.SetCurrent(kResultsTab);
    form.rtbHold.AppendContent(PlainRichText(kRecordEnd, kTextFont, kReportFontSize));
    form.rtbReg.AppendContent(form.rtbHold.Content());
}

void WriteLines(Form1& form, RichTextBox& target, std::initializer_list<std::string> lines) {
    WriteLines(form, target, std::span(lines.begin(), lines.size()));
}

void AppendToLog(Form1& form, std::string_view text) {
    form.rtbReg.AppendContent(PlainRichText(text, kTextFont, kReportFontSize));
}

}  // namespace tavrelo::shell
