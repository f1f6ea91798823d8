#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <optional>
#include <vector>

#include "window/keys.h"

namespace tavrelo::qt {

bool IsArrow(window::Key key);
/// The stroke that the model knows for a key event; nothing for keys that only the widgets and the desktop
/// know.
std::optional<window::KeyStroke> ToKeyStroke(const QKeyEvent& event);
/// The keys of a shortcut.
QKeySequence ToKeySequence(const window::KeyStroke& stroke);
/// The character that a key press types for the model; nothing when it types none.
std::optional<char32_t> ToTypedCharacter(const QKeyEvent& event);
/// The characters that an input method has made.
std::vector<char32_t> CommittedCharacters(const QInputMethodEvent& event);

}  // namespace tavrelo::qt
