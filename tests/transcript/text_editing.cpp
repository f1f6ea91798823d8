#include "text_editing.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::transcript {
namespace {

using window::Key;
using window::KeyStroke;
using window::TextControl;
using window::TextSelection;

std::u32string SelectedText(const TextControl& box) {
    const TextSelection& chosen = box.Selection();
    return text::ToCodePoints(box.Text()).substr(chosen.start, chosen.length);
}

void ReplaceSelection(TextControl& box, std::u32string_view text) {
    if (box.Locked())
        return;
    const TextSelection chosen = box.Selection();
    std::u32string characters = text::ToCodePoints(box.Text());
    characters.replace(chosen.start, chosen.length, text);
    box.UserEdited(text::ToUtf8(characters), {chosen.start + text.size(), 0});
}

/// Deletes what is selected, else the character in front of the caret or behind it.
void Delete(TextControl& box, bool backward) {
    TextSelection chosen = box.Selection();
    if (box.Locked() || (chosen.length == 0 && backward && chosen.start == 0))
        return;
    if (chosen.length == 0)
        chosen = {chosen.start - (backward ? 1 : 0), 1};
    box.UserSelected(chosen);
    ReplaceSelection(box, {});
}

/// The letter of the shortcut that an older way of cutting, copying and pasting stands for; 0 for any other
/// key.
char32_t LetterOf(const KeyStroke& stroke) {
    if (stroke.key == Key::Insert && stroke.shift != stroke.ctrl)
        return stroke.shift ? U'v' : U'c';
    return stroke.key == Key::Delete && stroke.shift && !stroke.ctrl ? U'x' : U'\0';
}

}  // namespace

bool IsCopying(const KeyStroke& stroke) {
    const bool is_letter = stroke.key == Key::Character && stroke.ctrl && !stroke.alt && !stroke.shift;
    return (is_letter && stroke.character == U'c') || LetterOf(stroke) == U'c';
}

void TextEditing::Take(TextControl& box, const KeyStroke& stroke) {
    if (const char32_t letter = LetterOf(stroke))
        return TakeShortcut(box, letter);
    switch (stroke.key) {
        case Key::Character:
            if (stroke.ctrl && !stroke.alt)
                TakeShortcut(box, stroke.character);
            else if (!stroke.ctrl && !stroke.alt)
                ReplaceSelection(box, std::u32string(1, stroke.character));
            break;
        case Key::Backspace:
            Delete(box, true);
            break;
        case Key::Delete:
            Delete(box, false);
            break;
        case Key::Left:
        case Key::Right:
        case Key::Home:
        case Key::End:
            MoveCaret(box, stroke);
            break;
        default:
            break;
    }
}

void TextEditing::TakeShortcut(TextControl& box, char32_t letter) {
    switch (letter) {
        case U'a':
            box.UserSelected({0, box.Length()});
            break;
        case U'c':
            Copy(box);
            break;
        case U'x':
            Copy(box);
            ReplaceSelection(box, {});
            break;
        case U'v':
            ReplaceSelection(box, text::ToCodePoints(m_clipboard.Text()));
            break;
        default:
            break;
    }
}

void TextEditing::Copy(const TextControl& box) {
    if (box.Selection().length > 0)
        m_clipboard.SetText(text::ToUtf8(SelectedText(box)));
}

std::size_t TextEditing::Caret(const TextControl& box) const {
    const TextSelection& chosen = box.Selection();
    const bool in_front = m_leftward_box == &box && m_leftward_selection == chosen;
    return in_front ? chosen.start : chosen.start + chosen.length;
}

void TextEditing::MoveCaret(TextControl& box, const KeyStroke& stroke) {
    const TextSelection chosen = box.Selection();
    const std::size_t caret = Caret(box);
    const std::size_t anchor = 2 * chosen.start + chosen.length - caret;
    const bool collapses = chosen.length > 0 && !stroke.shift;
    std::size_t target = 0;
    if (stroke.key == Key::Left)
        target = collapses ? chosen.start : caret - std::min<std::size_t>(caret, 1);
    else if (stroke.key == Key::Right)
        target = collapses ? chosen.start + chosen.length : std::min(caret + 1, box.Length());
    else if (stroke.key == Key::End)
        target = box.Length();
    if (!stroke.shift) {
        box.UserSelected({target, 0});
        return;
    }
    box.UserSelected({std::min(anchor, target), std::max(anchor, target) - std::min(anchor, target)});
    m_leftward_box = target < anchor ? &box : nullptr;
    m_leftward_selection = box.Selection();
}

}  // namespace tavrelo::transcript
