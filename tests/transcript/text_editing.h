#pragma once

#include <string>

#include "shell/controls.h"
#include "shell/host.h"

namespace tavrelo::transcript {

/// What a box of one line does by itself with a key that the program left alone: typing, deleting, moving the
/// caret, copying and pasting. A locked box only lets copy.
class TextEditing {
  public:
    explicit TextEditing(shell::Clipboard& clipboard) : m_clipboard(clipboard) {}

    void Take(shell::TextControl& box, const shell::KeyStroke& stroke);

  private:
    void TakeShortcut(shell::TextControl& box, char32_t letter);
    void MoveCaret(shell::TextControl& box, const shell::KeyStroke& stroke);
    void Copy(const shell::TextControl& box);
    std::size_t Caret(const shell::TextControl& box) const;

    shell::Clipboard& m_clipboard;
    // A selection made leftward has its caret in front; the boxes themselves keep it behind.
    const shell::TextControl* m_leftward_box = nullptr;
    shell::TextSelection m_leftward_selection;
};

}  // namespace tavrelo::transcript
