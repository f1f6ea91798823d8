#include "key_names.h"

#include <optional>
#include <string>

#include "script.h"
#include "text/utf8.h"

namespace tavrelo::transcript {
namespace {

using window::Key;
using window::KeyStroke;

struct KeyName {
    std::string_view name;
    Key key;
};
constexpr KeyName kKeyNames[] = {
    {"Enter", Key::Enter},   {"Backspace", Key::Backspace},
    {"Delete", Key::Delete}, {"Insert", Key::Insert},
    {"Left", Key::Left},     {"Right", Key::Right},
    {"Up", Key::Up},         {"Down", Key::Down},
    {"Home", Key::Home},     {"End", Key::End},
    {"F10", Key::F10},       {"F11", Key::F11},
    {"F12", Key::F12},
};

struct HeldKey {
    std::string_view prefix;
    bool KeyStroke::*held;
};
constexpr HeldKey kHeldKeys[] = {
    {"Shift+", &KeyStroke::shift},
    {"Ctrl+", &KeyStroke::ctrl},
    {"Alt+", &KeyStroke::alt},
};

char32_t OnlyCharacter(const std::string& text) { return text::ToCodePoints(text).front(); }

char32_t Capital(char32_t character) { return OnlyCharacter(text::ToUpper(text::ToUtf8(character))); }

char32_t Small(char32_t character) { return OnlyCharacter(text::ToLower(text::ToUtf8(character))); }

/// Takes the name of a held key off the front of a name that goes on behind it.
const HeldKey* TakeHeldKey(std::string_view& name) {
    for (const HeldKey& row : kHeldKeys)
        if (name.starts_with(row.prefix) && name.size() > row.prefix.size()) {
            name.remove_prefix(row.prefix.size());
            return &row;
        }
    return nullptr;
}

std::optional<Key> NamedKey(std::string_view name) {
    for (const KeyName& row : kKeyNames)
        if (row.name == name)
            return row.key;
    return std::nullopt;
}

/// With Ctrl or Alt a key tells its letter; else it tells what it types.
void FitCharacter(KeyStroke& stroke) {
    if (stroke.ctrl || stroke.alt)
        stroke.character = Small(stroke.character);
    else if (stroke.shift)
        stroke.character = Capital(stroke.character);
    else
        stroke.shift = StrokeOf(stroke.character).shift;
}

}  // namespace

KeyStroke StrokeOf(char32_t character) {
    KeyStroke stroke;
    stroke.character = character;
    stroke.shift = Small(character) != character;
    return stroke;
}

KeyStroke StrokeNamed(std::string_view name) {
    KeyStroke stroke;
    std::string_view key = name;
    while (const HeldKey* held = TakeHeldKey(key))
        stroke.*(held->held) = true;
    if (const auto named = NamedKey(key)) {
        stroke.key = *named;
        return stroke;
    }
    if (text::CharacterCount(key) != 1)
        throw ScriptError("there is no key \"" + std::string(name) + "\"");
    stroke.character = OnlyCharacter(std::string(key));
    FitCharacter(stroke);
    return stroke;
}

}  // namespace tavrelo::transcript
