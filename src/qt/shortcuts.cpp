#include "qt/shortcuts.h"

#include <QShortcut>
#include <functional>

#include "qt/keys.h"

namespace tavrelo::qt {
namespace {

void Add(QWidget& window, const QKeySequence& keys, const std::function<void()>& action) {
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, action);
}

}  // namespace

void MakeProgramShortcuts(window::Form1& form, QWidget& window, FocusGuide& guide) {
    for (const window::Shortcut& shortcut : form.shortcuts)
        Add(window, ToKeySequence(shortcut.stroke), shortcut.action);
    Add(window, QKeySequence(Qt::Key_F6), [&guide] { guide.GoToNextPanel(+1); });
    Add(window, QKeySequence(Qt::SHIFT | Qt::Key_F6), [&guide] { guide.GoToNextPanel(-1); });
}

}  // namespace tavrelo::qt
