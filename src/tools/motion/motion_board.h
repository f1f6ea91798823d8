#pragma once

#include <string_view>

#include "window/surface.h"

// The board of equations: ten lines, numbered from 1 at the top.

namespace tavrelo::tools::motion {

/// A white band over a line.
void ClearBoardLine(window::Surface& board, int slot);
/// Prints a line in picture markup over what stands there.
void PrintBoardLine(window::Surface& board, int slot, std::string_view markup);

}  // namespace tavrelo::tools::motion
