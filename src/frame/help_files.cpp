#include "frame/help_files.h"

#include <algorithm>
#include <optional>

#include "frame/writer.h"
#include "text/utf8.h"

namespace tavrelo::frame {
namespace {

// The characters of the bytes 128 to 159; all other bytes are the character of the same number.
constexpr std::u32string_view kUpperControls = U"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
constexpr unsigned char kFirstUpperControl = 128;
constexpr std::size_t kCodePageSize = 256;
constexpr std::string_view kTopicEnd = "[STOP]";

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

/// Cuts the next line off the front of a text, without its line end (LF or CR LF); nothing behind the last
/// one.
std::optional<std::string_view> NextLine(std::string_view& rest) {
    if (rest.empty())
        return std::nullopt;
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::string_view MustHaveLine(std::string_view& rest) {
    const auto line = NextLine(rest);
    if (!line)
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, "topic");
    return *line;
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += CharacterOf(static_cast<unsigned char>(byte));
    return text::ToUtf8(text);
}

std::string ToCodePage(std::string_view text) {
    std::string bytes;
    for (const char32_t character : text::ToCodePoints(text))
        bytes += ByteOf(character);
    return bytes;
}

std::string ReadTextFile(const window::Files& files, std::string_view path) {
    return FromCodePage(files.Read(path));
}

std::string ReadTopic(const window::Files& files, std::string_view path, std::string_view tag) {
    const std::string file = ReadTextFile(files, path);
    const std::string heading = "[" + std::string(tag) + "]";
    std::string_view rest = file;
    while (MustHaveLine(rest) != heading) {
    }
    std::string topic;
    bool first = true;
    for (std::string_view line = MustHaveLine(rest); line != kTopicEnd; line = MustHaveLine(rest)) {
        if (!first)
            topic += "\r\n";
        topic += line;
        first = false;
    }
    return topic;
}

bool LoadTopic(window::Form1& form, window::RichTextBox& target, std::string_view font_name, double font_size,
               std::string_view path, std::string_view tag) {
    try {
        WriteMarkup(form, font_name, font_size, ReadTopic(form.files, path, tag));
    } catch (const numeric::RuntimeFailure&) {
        form.boxes.Tell("No pude cargar el archivo.");
        return false;
    }
    target.SetContent(form.rtbHold.Content());
    return true;
}

}  // namespace tavrelo::frame
