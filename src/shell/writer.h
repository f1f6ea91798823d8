#pragma once

#include <span>
#include <string>
#include <string_view>

#include "shell/form1.h"

namespace tavrelo::shell {

inline constexpr double kReportFontSize = 10;  // points

/// Renders a markup text into the box rtbHold, out of sight.
void WriteMarkup(Form1& form, std::string_view font_name, double font_size, std::string_view text);

/// The normal way to report: each line ends in a line end. rtbSolve and rtbCalc come to the front on their
/// tab and the text goes to the log too, behind it "-----"; rtbSolve appends, every other box is replaced.
void WriteLines(Form1& form, RichTextBox& target, std::span<const std::string> lines);
void WriteLines(Form1& form, RichTextBox& target, std::initializer_list<std::string> lines);

/// Appends plain text (no marks) to the end of the log.
void AppendToLog(Form1& form, std::string_view text);

}  // namespace tavrelo::shell
