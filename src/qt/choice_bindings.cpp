#include <QCheckBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <algorithm>
#include <iterator>
#include <vector>

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

/// Where a key leads in a group of options: an arrow to the next one that can be chosen, round and round,
/// Home and End to the first and the last. Null for another key and where there is no other option.
window::OptionButton* OptionAt(int key, const window::OptionButton& from) {
    std::vector<window::OptionButton*> usable;
    std::ranges::copy_if(from.group, std::back_inserter(usable),
                         [](const window::OptionButton* option) { return option->IsUsable(); });
    const auto count = static_cast<std::ptrdiff_t>(usable.size());
    const std::ptrdiff_t here = std::ranges::find(usable, &from) - usable.begin();
    std::ptrdiff_t there = here;
    if (key == Qt::Key_Home)
        there = 0;
    else if (key == Qt::Key_End)
        there = count - 1;
    else if (key == Qt::Key_Right || key == Qt::Key_Down)
        there = (here + 1) % count;
    else if (key == Qt::Key_Left || key == Qt::Key_Up)
        there = (here + count - 1) % count;
    return there == here ? nullptr : usable[static_cast<std::size_t>(there)];
}

bool MovesInGroup(int key) {
    constexpr int kKeys[] = {Qt::Key_Home, Qt::Key_End,   Qt::Key_Left,
                             Qt::Key_Up,   Qt::Key_Right, Qt::Key_Down};
    return std::ranges::find(kKeys, key) != std::end(kKeys);
}

/// An option; the arrows choose another one of its group, with Ctrl they only go there, for choosing may do
/// much.
class OptionBinding : public ChoiceBinding<window::OptionButton> {
  public:
    OptionBinding(window::OptionButton& option, QAbstractButton& widget, ViewContext& context)
        : ChoiceBinding(option, widget, context), m_option(option) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
        if (!key || !MovesInGroup(key->key()))
            return ChoiceBinding::eventFilter(watched, event);
        if (window::OptionButton* other = OptionAt(key->key(), m_option)) {
            Form().SetFocus(*other);
            if (!(key->modifiers() & Qt::ControlModifier))
                other->UserClick();
        }
        return true;
    }

  private:
    window::OptionButton& m_option;
};

}  // namespace

std::unique_ptr<Binding> NewOptionBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& option = dynamic_cast<window::OptionButton&>(control);
    return std::make_unique<OptionBinding>(option, *new WholeChoice<QRadioButton>(&parent), context);
}

std::unique_ptr<Binding> NewCheckBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& check = dynamic_cast<window::CheckBox&>(control);
    return std::make_unique<ChoiceBinding<window::CheckBox>>(check, *new WholeChoice<QCheckBox>(&parent),
                                                             context);
}

}  // namespace tavrelo::qt
