#pragma once

#include <string>
#include <vector>

#include "window/host.h"

namespace tavrelo::window {

/// A sheet of paper, in twips.
struct Paper {
    double width;
    double height;
};
inline constexpr Paper kA4Paper{11906, 16838};

// What is printed, in twips from the left edge and the top of the column between the margins.

/// A stretch of one look on a line; it holds no line end.
struct PrintedRun {
    double left;
    text::Run run;
};
struct PrintedLine {
    double top;
    double base_line;  // runs stand on it, raised by their offset
    std::vector<PrintedRun> runs;

    std::string Text() const;
};
struct PrintedPage {
    std::vector<PrintedLine> lines;
};

/// Breaks a text into lines by the column between the margins and into pages by the height between them; each
/// page goes on where the one before ended. A line higher than the page still fills one. Every printer prints
/// these pages.
std::vector<PrintedPage> Paginate(const text::RichText& text, const Paper& paper, const PageMargins& margins);

}  // namespace tavrelo::window
