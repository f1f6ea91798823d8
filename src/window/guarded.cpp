#include "window/guarded.h"

namespace tavrelo::window {

void OnEnter(Form1& form, TextControl& box, Event handler, std::string_view message) {
    box.OnKeyPress = [&boxes = form.boxes, handler = std::move(handler),
                      text = std::string(message)](char32_t character) {
        if (character != kEnterCharacter)
            return false;
        Guard(boxes, text, handler);
        return true;
    };
}

}  // namespace tavrelo::window
