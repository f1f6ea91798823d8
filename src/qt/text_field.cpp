#include "qt/text_field.h"

#include <QContextMenuEvent>
#include <QMenu>

#include "qt/keys.h"

namespace tavrelo::qt {

void TextField::keyPressEvent(QKeyEvent* event) {
    const auto stroke = ToKeyStroke(*event);
    if (stroke && m_model.UserKeyDown(*stroke))
        return event->accept();
    const auto typed = ToTypedCharacter(*event);
    if (typed && m_model.UserKeyPress(*typed))
        return event->accept();
    QLineEdit::keyPressEvent(event);
}

void TextField::keyReleaseEvent(QKeyEvent* event) {
    const auto stroke = ToKeyStroke(*event);
    if (stroke && !event->isAutoRepeat())
        m_model.UserKeyUp(*stroke);
    QLineEdit::keyReleaseEvent(event);
}

void TextField::inputMethodEvent(QInputMethodEvent* event) {
    const auto characters = CommittedCharacters(*event);
    if (characters.empty())
        return QLineEdit::inputMethodEvent(event);
    for (const char32_t character : characters) {
        if (m_model.UserKeyPress(character))
            continue;
        QInputMethodEvent commit;
        commit.setCommitString(QString::fromUcs4(&character, 1));
        QLineEdit::inputMethodEvent(&commit);
    }
    event->accept();
}

void TextField::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(font());
    menu->popup(event->globalPos());
}

}  // namespace tavrelo::qt
