#include "qt/shortcuts.h"

#include <QShortcut>
#include <functional>

namespace tavrelo::qt {
namespace {

// Buttons of the toolbar, from 1.
constexpr int kPreferences = 7;
constexpr int kHelp = 8;

void Add(QWidget& window, const QKeySequence& keys, const std::function<void()>& action) {
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, action);
}

void PressToolbar(window::Form1& form, int button) {
    auto& toolbar = form.Get<window::Picture>("Image1");
    toolbar.UserGoToCell(button - 1);
    toolbar.UserChooseCell({});
}

/// The short help of the panel in view.
void PressQuestionMark(window::Form1& form) {
    for (window::Control* control : form.Controls()) {
        auto* button = dynamic_cast<window::Button*>(control);
        if (!button || button->Caption() != "?" || !button->IsUsable())
            continue;
        button->UserClick();
        return;
    }
}

}  // namespace

void MakeProgramShortcuts(window::Form1& form, QWidget& window, FocusGuide& guide) {
    // Leaving the program takes a deliberate press: the last button has no key.
    for (int button = 1; button <= kHelp; ++button)
        Add(window, QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + button)),
            [&form, button] { PressToolbar(form, button); });
    Add(window, QKeySequence(Qt::Key_F1), [&form] { PressToolbar(form, kHelp); });
    Add(window, QKeySequence(Qt::SHIFT | Qt::Key_F1), [&form] { PressQuestionMark(form); });
    Add(window, QKeySequence(Qt::CTRL | Qt::Key_P), [&form] { PressToolbar(form, kPreferences); });
    Add(window, QKeySequence(Qt::Key_F6), [&guide] { guide.GoToNextPanel(+1); });
    Add(window, QKeySequence(Qt::SHIFT | Qt::Key_F6), [&guide] { guide.GoToNextPanel(-1); });
}

}  // namespace tavrelo::qt
