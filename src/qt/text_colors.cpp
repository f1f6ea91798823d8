#include "qt/text_colors.h"

#include "text/contrast.h"

namespace tavrelo::qt {

text::Color ShownOn(text::Color background, text::Color text, TextLook look) {
    const bool is_told = look == TextLook::Told && !text::IsDark(background);
    return is_told ? text : text::ReadableOn(text, background);
}

}  // namespace tavrelo::qt
