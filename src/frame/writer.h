#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

/// Where reports are made and go to.
struct ReportControls {
    window::Form1& form;
    window::RichTextBox& rtbHold = form.Get<window::RichTextBox>("rtbHold");
    window::RichTextBox& rtbCalc = form.Get<window::RichTextBox>("rtbCalc");
    window::RichTextBox& rtbSolve = form.Get<window::RichTextBox>("rtbSolve");
    window::RichTextBox& rtbReg = form.Get<window::RichTextBox>("rtbReg");
    window::TabStrip& tabCalc = form.Get<window::TabStrip>("tabCalc");
};

inline constexpr double kReportFontSize = 10;  // points

/// Renders a markup text into the box rtbHold, out of sight, and gives what stands there.
const text::RichText& WriteMarkup(window::Form1& form, std::string_view font_name, double font_size,
                                  std::string_view text);

/// The normal way to report: each line ends in a line end. rtbSolve and rtbCalc come to the front on their
/// tab and the text goes to the log too, behind it "-----"; rtbSolve appends, every other box is replaced.
void WriteLines(window::Form1& form, window::RichTextBox& target, std::span<const std::string> lines);
void WriteLines(window::Form1& form, window::RichTextBox& target, std::initializer_list<std::string> lines);

using Lines = std::vector<std::string>;

/// Joins neighbouring paragraphs while one rendering takes their marks (text::kMarkLimit); a paragraph that
/// passes the limit by itself is taken line by line.
std::vector<Lines> Portions(std::span<const Lines> paragraphs);

/// A report of any length into a box that appends: WriteLines of each portion, the view being told once.
void WritePortions(window::Form1& form, window::RichTextBox& target, std::span<const Lines> paragraphs);

/// Appends plain text (no marks) to the end of the log.
void AppendToLog(window::Form1& form, std::string_view text);

}  // namespace tavrelo::frame
