#pragma once

#include <string>

#include "window/controls.h"
#include "window/host.h"

namespace tavrelo::transcript {

/// Ctrl with C, or the older Ctrl with Insert.
bool IsCopying(const window::KeyStroke& stroke);

/// What a box of one line does by itself with a key that the program left alone: typing, deleting, moving the
/// caret, copying and pasting. A locked box only lets copy.
class TextEditing {
  public:
    explicit TextEditing(window::Clipboard& clipboard) : m_clipboard(clipboard) {}

    void Take(window::TextControl& box, const window::KeyStroke& stroke);

  private:
    void TakeShortcut(window::TextControl& box, char32_t letter);
    void MoveCaret(window::TextControl& box, const window::KeyStroke& stroke);
    void Copy(const window::TextControl& box);
    std::size_t Caret(const window::TextControl& box) const;

    window::Clipboard& m_clipboard;
    // A selection made leftward has its caret in front; the boxes themselves keep it behind.
    const window::TextControl* m_leftward_box = nullptr;
    window::TextSelection m_leftward_selection;
};

}  // namespace tavrelo::transcript
