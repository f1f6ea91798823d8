#pragma once

#include "window/surface.h"

namespace tavrelo::frame {

/// Paints the page that greets at the start of the program.
void ShowWelcome(window::Surface& surface);

}  // namespace tavrelo::frame
