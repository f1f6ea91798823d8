#include <QPushButton>

#include "qt/bindings.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

class ButtonBinding : public Binding {
  public:
    ButtonBinding(window::Button& button, QPushButton& widget, ViewContext& context)
        : Binding(button, widget, context), m_button(button), m_widget(widget) {
        connect(&widget, &QPushButton::clicked, this, [this] { Report([this] { m_button.UserClick(); }); });
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_widget.setText(ToCaption(m_button.Caption()));
        ShowIcon();
    }

    QPalette::ColorRole BackRole() const override { return QPalette::Button; }

  private:
    void ShowIcon() {
        const bool is_shown = m_icon == m_button.Picture() && m_icon_zoom == Zoom();
        if (is_shown || (m_icon.bitmap.empty() && m_button.Picture().bitmap.empty()))
            return;
        m_icon = m_button.Picture();
        m_icon_zoom = Zoom();
        const window::Rect& place = m_icon.source;
        const QRectF source(place.left, place.top, place.width, place.height);
        m_widget.setIconSize((source.size() * Zoom()).toSize());
        m_widget.setIcon(
            Context().artwork.Piece(m_icon.bitmap, source, Zoom(), m_widget.devicePixelRatioF()));
    }

    window::Button& m_button;
    QPushButton& m_widget;
    window::Icon m_icon;
    double m_icon_zoom = 0;
};

}  // namespace

std::unique_ptr<Binding> NewButtonBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto* widget = new QPushButton(&parent);
    widget->setAutoDefault(false);
    return std::make_unique<ButtonBinding>(dynamic_cast<window::Button&>(control), *widget, context);
}

}  // namespace tavrelo::qt
