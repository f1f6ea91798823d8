#include "qt/mnemonics.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSet>
#include <utility>

#include "qt/text.h"

namespace tavrelo::qt {
namespace {

/// Letters without accent are one key on every keyboard.
bool IsKey(QChar letter) { return letter >= u'a' && letter <= u'z'; }

enum class Place { FirstOfWord, Anywhere };

int FreePlace(const QString& caption, const QSet<QChar>& given, Place where) {
    for (qsizetype place = 0; place < caption.size(); ++place) {
        const QChar letter = caption[place].toLower();
        const bool is_first = place == 0 || !caption[place - 1].isLetterOrNumber();
        if (IsKey(letter) && !given.contains(letter) && (is_first || where == Place::Anywhere))
            return static_cast<int>(place);
    }
    return -1;
}

QString WithMark(const QString& caption, int place) {
    return ToCaption(ToUtf8(caption.left(place))) + QLatin1Char('&') + ToCaption(ToUtf8(caption.mid(place)));
}

}  // namespace

std::vector<int> MnemonicPlaces(const std::vector<QString>& captions) {
    QSet<QChar> given;
    std::vector<int> places(captions.size(), -1);
    for (const Place where : {Place::FirstOfWord, Place::Anywhere})
        for (std::size_t k = 0; k < captions.size(); ++k) {
            if (places[k] < 0)
                places[k] = FreePlace(captions[k], given, where);
            if (places[k] >= 0)
                given.insert(captions[k][places[k]].toLower());
        }
    return places;
}

Mnemonics::Mnemonics(Lister buttons) : m_buttons(std::move(buttons)) { qApp->installEventFilter(this); }

void Mnemonics::Show() {
    auto buttons = m_buttons();
    // The line below a whole caption tells something already.
    std::erase_if(buttons, [](const QAbstractButton* button) { return button->font().underline(); });
    std::vector<QString> captions;
    for (const QAbstractButton* button : buttons)
        captions.push_back(FromCaption(button->text()));
    const auto places = MnemonicPlaces(captions);
    for (std::size_t k = 0; k < buttons.size(); ++k) {
        if (places[k] < 0)
            continue;
        m_marked.push_back({buttons[k], buttons[k]->text(), WithMark(captions[k], places[k])});
        buttons[k]->setText(m_marked.back().marked);
    }
}

void Mnemonics::Hide() {
    for (const Marked& marked : std::exchange(m_marked, {}))
        // A caption that the program changed meanwhile stays.
        if (marked.button && marked.button->text() == marked.marked)
            marked.button->setText(marked.caption);
}

bool Mnemonics::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool is_key = type == QEvent::KeyPress || type == QEvent::KeyRelease;
    const bool is_alt = is_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
    const bool was_held = m_is_held;
    if (is_alt)
        m_is_held = type == QEvent::KeyPress;
    else if (type == QEvent::WindowDeactivate)
        m_is_held = false;
    // What a letter has done may have brought other buttons in view.
    const bool is_struck = was_held && m_is_held && !is_alt && type == QEvent::KeyRelease;
    if (was_held != m_is_held || is_struck)
        Hide();
    if (m_is_held && (!was_held || is_struck))
        Show();
    return QObject::eventFilter(watched, event);
}

}  // namespace tavrelo::qt
