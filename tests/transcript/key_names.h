#pragma once

#include <string_view>

#include "window/keys.h"

namespace tavrelo::transcript {

/// The stroke that types a character; a capital letter holds Shift.
window::KeyStroke StrokeOf(char32_t character);

/// The stroke of a key's name: "Enter", "F12", a character, with "Shift+", "Ctrl+", "Alt+" in front where
/// held. Fails with ScriptError on any other name.
window::KeyStroke StrokeNamed(std::string_view name);

}  // namespace tavrelo::transcript
