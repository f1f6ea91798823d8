#include "box_watcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "qt/text.h"

namespace tavrelo::transcript {
namespace {

using qt::ToUtf8;

window::Buttons ButtonsOf(const QMessageBox& box) {
    const auto buttons = box.standardButtons();
    if (buttons == (QMessageBox::Yes | QMessageBox::No))
        return window::Buttons::YesNo;
    return buttons == QMessageBox::Ok ? window::Buttons::Ok : window::Buttons::OkCancel;
}

QMessageBox::StandardButton ButtonFor(window::Answer answer) {
    switch (answer) {
        case window::Answer::Yes:
            return QMessageBox::Yes;
        case window::Answer::No:
            return QMessageBox::No;
        case window::Answer::Cancel:
            return QMessageBox::Cancel;
        case window::Answer::Ok:
            break;
    }
    return QMessageBox::Ok;
}

}  // namespace

BoxWatcher::BoxWatcher(BoxLog& log) : m_log(log) { qApp->installEventFilter(this); }

bool BoxWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show)
        if (auto* box = qobject_cast<QDialog*>(watched)) {
            // A box can be answered only once it waits.
            const QPointer<QDialog> shown(box);
            QTimer::singleShot(0, this, [this, shown] {
                if (shown)
                    Answer(*shown);
            });
        }
    return QObject::eventFilter(watched, event);
}

void BoxWatcher::Answer(QDialog& box) {
    if (auto* message = qobject_cast<QMessageBox*>(&box)) {
        AnswerMessage(*message);
    } else if (auto* input = qobject_cast<QInputDialog*>(&box)) {
        AnswerInput(*input);
    } else {
        m_log.Input("nobody expected this box", ToUtf8(box.windowTitle()));
        box.reject();
    }
}

void BoxWatcher::AnswerMessage(QMessageBox& box) {
    const window::Answer answer =
        m_log.Message(ToUtf8(box.text()), ToUtf8(box.windowTitle()), ButtonsOf(box));
    box.button(ButtonFor(answer))->click();
}

void BoxWatcher::AnswerInput(QInputDialog& box) {
    const auto text = m_log.Input(ToUtf8(box.labelText()), ToUtf8(box.windowTitle()));
    if (text)
        box.findChild<QLineEdit*>()->setText(qt::ToQString(*text));
    const auto button = text ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
    box.findChild<QDialogButtonBox*>()->button(button)->click();
}

}  // namespace tavrelo::transcript
