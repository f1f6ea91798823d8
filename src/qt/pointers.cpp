#include "qt/pointers.h"

#include "window/pointer.h"

namespace tavrelo::qt {

QCursor ToCursor(int shape) {
    switch (shape) {
        case window::kPointerCross:
            return Qt::CrossCursor;
        case window::kPointerMove:
            return Qt::SizeAllCursor;
        case window::kPointerArrowHourglass:
            return Qt::BusyCursor;
        case window::kPointerUpArrow:
            return Qt::UpArrowCursor;
        case window::kPointerBusy:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
    }
}

}  // namespace tavrelo::qt
