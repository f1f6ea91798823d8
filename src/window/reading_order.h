#pragma once

#include <vector>

#include "window/form1.h"

namespace tavrelo::window {

/// The controls of both windows as one reads them, seen or not: the panels from top to bottom and from left
/// to right as they stand now, what lies on a panel right behind it in the order of the control table.
std::vector<Control*> ReadingOrder(const Form1& form);

}  // namespace tavrelo::window
