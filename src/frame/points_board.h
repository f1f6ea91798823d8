#pragma once

#include <string_view>

#include "window/surface.h"

// The board of equations: ten lines, numbered from 1 at the top.

namespace tavrelo::frame {

/// The white band that empties a line, pixels: from `left`, `width` wide and `height` high.
struct BoardBand {
    double left;
    double width;
    double height;
};
inline constexpr BoardBand kMotionBand = {10, 411, 18};
/// Across the whole picture.
inline constexpr BoardBand kProjectileBand = {0, 397, 20};

/// A white band over a line.
void ClearBoardLine(window::Surface& board, int slot, const BoardBand& band);
/// Prints a line in picture markup over what stands there.
void PrintBoardLine(window::Surface& board, int slot, std::string_view markup);

}  // namespace tavrelo::frame
