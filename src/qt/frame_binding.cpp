#include <QFrame>

#include "qt/bindings.h"

namespace tavrelo::qt {

std::unique_ptr<Binding> NewFrameBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto* frame = new QFrame(&parent);
    // Panels lie over one another, so none lets what is below it shine through.
    frame->setAutoFillBackground(true);
    frame->setFrameShape(QFrame::StyledPanel);
    return std::make_unique<Binding>(control, *frame, context);
}

}  // namespace tavrelo::qt
