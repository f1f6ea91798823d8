#include "qt/pointers.h"

#include "shell/pointer.h"

namespace tavrelo::qt {

QCursor ToCursor(int shape) {
    switch (shape) {
        case shell::kPointerCross:
            return Qt::CrossCursor;
        case shell::kPointerMove:
            return Qt::SizeAllCursor;
        case shell::kPointerArrowHourglass:
            return Qt::BusyCursor;
        case shell::kPointerUpArrow:
            return Qt::UpArrowCursor;
        case shell::kPointerBusy:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
    }
}

}  // namespace tavrelo::qt
