#pragma once

#include "shell/surface.h"

namespace tavrelo::shell {

/// Paints the page that greets at the start of the program.
void ShowWelcome(Surface& surface);

}  // namespace tavrelo::shell
