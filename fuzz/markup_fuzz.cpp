#include <cstddef>
#include <cstdint>
#include <string_view>

#include "drawing/print_markup.h"
#include "harness.h"
#include "text/code_page.h"
#include "text/markup.h"
#include "text/utf8.h"

/// Both renderers take any text and never make it longer than the text and its end mark.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavrelo;
    using fuzz::Require;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t length = text::CharacterCount(text);

    const text::RichText rich = text::RenderMarkup(text::kTextFont, 10, text);
    Require(text::CharacterCount(rich.PlainText()) <= length + 1);

    window::Recorder surface(200, 100);
    drawing::PrintMarkup(surface, text, 0, 50, text::kTextFont, 8);
    for (const std::string& shown : surface.VisibleTexts())
        Require(text::CharacterCount(shown) <= length);

    const std::string line = text::ToUtf8(text::ToCodePoints(text)) + "\r\n";
    if (line.find("¬") == std::string::npos && length < text::kMarkLimit) {
        const std::string shown =
            text::RenderMarkup(text::kTextFont, 10, text::EscapeMarks(line)).PlainText();
        Require(shown == line);
    }
    text::ToCodePage(text::FromCodePage(text));
    return 0;
}
