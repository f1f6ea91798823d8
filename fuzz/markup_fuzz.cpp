#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "numeric/utf8.h"
#include "shell/help_files.h"
#include "shell/markup.h"

namespace {

void Require(bool holds) {
    if (!holds)
        std::abort();
}

}  // namespace

/// Both renderers take any text and never make it longer than the text and its end mark.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavrelo;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t length = numeric::CharacterCount(text);

    const shell::RichText rich = shell::RenderMarkup(shell::kTextFont, 10, text);
    Require(numeric::CharacterCount(rich.PlainText()) <= length + 1);

    shell::Recorder surface(200, 100);
    shell::PrintMarkup(surface, text, 0, 50, shell::kTextFont, 8);
    for (const std::string& shown : surface.VisibleTexts())
        Require(numeric::CharacterCount(shown) <= length);

    const std::string line = numeric::ToUtf8(numeric::ToCodePoints(text)) + "\r\n";
    if (line.find("¬") == std::string::npos && length < shell::kMarkLimit) {
        const std::string shown =
            shell::RenderMarkup(shell::kTextFont, 10, shell::EscapeMarks(line)).PlainText();
        Require(shown == line);
    }
    shell::ToCodePage(shell::FromCodePage(text));
    return 0;
}
