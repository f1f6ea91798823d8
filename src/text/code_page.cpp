#include "text/code_page.h"

#include "text/utf8.h"

namespace tavrelo::text {
namespace {

// The characters of the bytes 128 to 159; all other bytes are the character of the same number.
constexpr std::u32string_view kUpperControls = U"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
constexpr unsigned char kFirstUpperControl = 128;
constexpr std::size_t kCodePageSize = 256;

static_assert(kUpperControls.size() == 32);

char32_t CharacterOf(unsigned char byte) {
    const std::size_t index = static_cast<std::size_t>(byte) - kFirstUpperControl;
    return byte >= kFirstUpperControl && index < kUpperControls.size() ? kUpperControls[index] : byte;
}

char ByteOf(char32_t character) {
    const std::size_t index = kUpperControls.find(character);
    if (index != std::u32string_view::npos)
        return static_cast<char>(kFirstUpperControl + index);
    return character < kCodePageSize ? static_cast<char>(character) : '?';
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += CharacterOf(static_cast<unsigned char>(byte));
    return ToUtf8(text);
}

std::string ToCodePage(std::string_view text) {
    std::string bytes;
    for (const char32_t character : ToCodePoints(text))
        bytes += ByteOf(character);
    return bytes;
}

}  // namespace tavrelo::text
