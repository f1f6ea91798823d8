#include "window/guarded.h"

namespace tavrelo::window {

void OnEnter(Form1& form, TextControl& box, Event work, std::string_view message) {
    const auto guarded = [&boxes = form.boxes, work = std::move(work),
                          text = std::string(message)](char32_t character) {
        if (character != kEnterCharacter)
            return false;
        Guard(boxes, text, work);
        return true;
    };
    HandlerAccess::Put<bool(char32_t)>(box.OnKeyPress, guarded);
}

}  // namespace tavrelo::window
