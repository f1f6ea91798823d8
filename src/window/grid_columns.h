#pragma once

#include <span>
#include <string_view>

#include "window/controls.h"

namespace tavrelo::window {

/// One column of a table that begins with its headings alone.
struct GridColumn {
    std::string_view heading;
    int width;  // twips
    Alignment alignment = Alignment::Center;
};

/// Empties a grid and lays it out anew: one fixed row with the headings, the first column fixed too.
void ArrangeColumns(Grid& grid, std::span<const GridColumn> columns);

}  // namespace tavrelo::window
