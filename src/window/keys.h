#pragma once

namespace tavrelo::window {

/// The keys that the program knows apart from characters.
enum class Key {
    Character,  // any key that types one; see KeyStroke::character
    Enter,
    Backspace,
    Delete,
    Insert,
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    Tab,
    Escape,
    F1,
    F10,
    F11,
    F12,
};

/// One key stroke. `character` is what the keyboard would type, with Shift already applied to it; with Ctrl
/// or Alt held it is the letter of the key.
struct KeyStroke {
    Key key = Key::Character;
    char32_t character = 0;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// The letter of a key held with Ctrl alone, as a small one; 0 for every other stroke.
constexpr char32_t CtrlLetter(const KeyStroke& stroke) {
    constexpr char32_t kToSmall = U'a' - U'A';
    if (stroke.key != Key::Character || !stroke.ctrl || stroke.shift || stroke.alt)
        return 0;
    const bool is_capital = stroke.character >= U'A' && stroke.character <= U'Z';
    return is_capital ? stroke.character + kToSmall : stroke.character;
}

// The control characters that OnKeyPress receives.
inline constexpr char32_t kEnterCharacter = 13;
inline constexpr char32_t kBackspaceCharacter = 8;

}  // namespace tavrelo::window
