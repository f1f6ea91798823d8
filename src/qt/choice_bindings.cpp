#include <QCheckBox>
#include <QRadioButton>

#include "qt/bindings.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

/// Takes a click anywhere in its rectangle, not only on the mark and the caption: at every zoom the same
/// place.
template <class WidgetType>
class WholeChoice : public WidgetType {
  public:
    using WidgetType::WidgetType;

  protected:
    bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
};

/// Option buttons and check boxes. A click flips the widget at once; the model then says what is really
/// checked.
template <class ControlType>
class ChoiceBinding : public Binding {
  public:
    ChoiceBinding(ControlType& choice, QAbstractButton& widget, ViewContext& context)
        : Binding(choice, widget, context), m_choice(choice), m_widget(widget) {
        // The model keeps the groups.
        widget.setAutoExclusive(false);
        connect(&widget, &QAbstractButton::clicked, this, [this] {
            Report([this] { m_choice.UserClick(); });
            Refresh(window::Change::State);
        });
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_widget.setText(ToCaption(m_choice.Caption()));
        m_widget.setChecked(m_choice.Checked());
    }

  private:
    ControlType& m_choice;
    QAbstractButton& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewOptionBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& option = dynamic_cast<window::OptionButton&>(control);
    return std::make_unique<ChoiceBinding<window::OptionButton>>(
        option, *new WholeChoice<QRadioButton>(&parent), context);
}

std::unique_ptr<Binding> NewCheckBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& check = dynamic_cast<window::CheckBox&>(control);
    return std::make_unique<ChoiceBinding<window::CheckBox>>(check, *new WholeChoice<QCheckBox>(&parent),
                                                             context);
}

}  // namespace tavrelo::qt
