#include <QApplication>
#include <QPainter>

#include "qt/accessible.h"
#include "qt/bindings.h"
#include "qt/fonts.h"

namespace tavrelo::qt {
namespace {

/// A filled rectangle, or only its outline where the shape has no back colour.
class ShapeWidget : public QWidget, public TellsOfItself {
  public:
    ShapeWidget(const window::Control& model, QWidget& parent, const ViewContext& context)
        : QWidget(&parent), m_model(model), m_context(context) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    QAccessibleInterface* NewAccessible() override { return new AccessibleOrnament(*this); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (m_model.HasBackColor()) {
            painter.fillRect(rect(), ToQColor(m_model.BackColor()));
            if (m_context.text_look == TextLook::Readable)
                Outline(painter, QApplication::palette().color(QPalette::WindowText), m_context.Scaled(1));
            return;
        }
        constexpr int kOutline = 2;
        const int width = m_context.Scaled(kOutline);
        Outline(painter, ToQColor(m_model.ForeColor()), width);
    }

  private:
    void Outline(QPainter& painter, const QColor& color, int width) const {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(rect()).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
    }

    const window::Control& m_model;
    const ViewContext& m_context;
};

class ShapeBinding : public Binding {
  public:
    using Binding::Binding;

  protected:
    void ShowState() override {
        Binding::ShowState();
        Widget().setAutoFillBackground(false);
        Widget().update();
    }
};

}  // namespace

std::unique_ptr<Binding> NewShapeBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    return std::make_unique<ShapeBinding>(control, *new ShapeWidget(control, parent, context), context);
}

}  // namespace tavrelo::qt
