#include "qt/keys.h"

#include <QChar>
#include <algorithm>
#include <iterator>

namespace tavrelo::qt {
namespace {

using window::Key;

struct NamedKey {
    int qt_key;
    Key key;
};

constexpr NamedKey kNamedKeys[] = {
    {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},   {Qt::Key_Backspace, Key::Backspace},
    {Qt::Key_Delete, Key::Delete}, {Qt::Key_Insert, Key::Insert}, {Qt::Key_Left, Key::Left},
    {Qt::Key_Right, Key::Right},   {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},
    {Qt::Key_Home, Key::Home},     {Qt::Key_End, Key::End},       {Qt::Key_Tab, Key::Tab},
    {Qt::Key_Backtab, Key::Tab},   {Qt::Key_Escape, Key::Escape}, {Qt::Key_F1, Key::F1},
    {Qt::Key_F10, Key::F10},       {Qt::Key_F11, Key::F11},       {Qt::Key_F12, Key::F12},
};

/// True while a modifier makes the stroke a command. Some desktops report AltGr as Ctrl and Alt together.
bool HoldsCommand(const QKeyEvent& event) {
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool alt_gr = held == (Qt::ControlModifier | Qt::AltModifier) && !event.text().isEmpty();
    return held && !alt_gr;
}

/// The one character of a text, or 0.
char32_t OnlyCharacter(const QString& text) {
    const auto characters = text.toUcs4();
    return characters.size() == 1 ? characters.front() : 0;
}

/// With Ctrl or Alt held the event's text is a control character, if anything; the key tells the letter.
char32_t CharacterOf(const QKeyEvent& event) {
    if (!HoldsCommand(event))
        return OnlyCharacter(event.text());
    const int code = event.key();
    if (code < Qt::Key_Space || code > Qt::Key_ydiaeresis)
        return 0;
    return QChar::toLower(static_cast<char32_t>(code));
}

bool IsPrintable(char32_t character) { return character != 0 && QChar::isPrint(character); }

}  // namespace

bool IsArrow(window::Key key) {
    return key == Key::Left || key == Key::Right || key == Key::Up || key == Key::Down;
}

std::optional<window::KeyStroke> ToKeyStroke(const QKeyEvent& event) {
    window::KeyStroke stroke;
    stroke.shift = event.modifiers() & Qt::ShiftModifier;
    stroke.ctrl = event.modifiers() & Qt::ControlModifier;
    stroke.alt = event.modifiers() & Qt::AltModifier;
    const auto* named =
        std::ranges::find_if(kNamedKeys, [&](const NamedKey& row) { return row.qt_key == event.key(); });
    if (named != std::end(kNamedKeys)) {
        stroke.key = named->key;
        return stroke;
    }
    stroke.character = CharacterOf(event);
    if (!IsPrintable(stroke.character))
        return std::nullopt;
    return stroke;
}

QKeySequence ToKeySequence(const window::KeyStroke& stroke) {
    const auto* named = std::ranges::find(kNamedKeys, stroke.key, &NamedKey::key);
    const char32_t capital = QChar::toUpper(stroke.character);
    const int key = named == std::end(kNamedKeys) ? static_cast<int>(capital) : named->qt_key;
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, stroke.shift);
    held.setFlag(Qt::ControlModifier, stroke.ctrl);
    held.setFlag(Qt::AltModifier, stroke.alt);
    return {QKeyCombination(held, static_cast<Qt::Key>(key))};
}

std::optional<char32_t> ToTypedCharacter(const QKeyEvent& event) {
    if (HoldsCommand(event))
        return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return window::kEnterCharacter;
        case Qt::Key_Backspace:
            return window::kBackspaceCharacter;
        default:
            break;
    }
    const char32_t character = OnlyCharacter(event.text());
    return IsPrintable(character) ? std::optional(character) : std::nullopt;
}

std::vector<char32_t> CommittedCharacters(const QInputMethodEvent& event) {
    const auto characters = event.commitString().toUcs4();
    return {characters.begin(), characters.end()};
}

}  // namespace tavrelo::qt
