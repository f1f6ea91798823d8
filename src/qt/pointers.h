#pragma once

#include <QCursor>

namespace tavrelo::qt {

/// The machine's pointer for a shape of the program's; see window::PointerShape.
QCursor ToCursor(int shape);

}  // namespace tavrelo::qt
