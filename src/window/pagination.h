#pragma once

#include <string>
#include <vector>

#include "window/host.h"

namespace tavrelo::window {

/// A sheet of paper, in twips.
struct Paper {
    int width;
    int height;
};
inline constexpr Paper kA4Paper{11906, 16838};

/// The texts of the lines of one page.
using PrintedPage = std::vector<std::string>;

/// Breaks a text into lines by the column between the margins and into pages by the height between them; each
/// page goes on where the one before ended. A line higher than the page still fills one.
std::vector<PrintedPage> Paginate(const text::RichText& text, const Paper& paper, const PageMargins& margins);

}  // namespace tavrelo::window
