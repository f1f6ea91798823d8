#include <QFrame>

#include "qt/accessible.h"
#include "qt/bindings.h"

namespace tavrelo::qt {
namespace {

class Panel : public QFrame, public TellsOfItself {
  public:
    explicit Panel(QWidget& parent) : QFrame(&parent) {}
    QAccessibleInterface* NewAccessible() override {
        return new QAccessibleWidget(this, QAccessible::Grouping);
    }
};

}  // namespace

std::unique_ptr<Binding> NewFrameBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto* frame = new Panel(parent);
    // Panels lie over one another, so none lets what is below it shine through.
    frame->setAutoFillBackground(true);
    frame->setFrameShape(QFrame::StyledPanel);
    return std::make_unique<Binding>(control, *frame, context);
}

}  // namespace tavrelo::qt
