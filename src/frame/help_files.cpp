#include "frame/help_files.h"

#include <optional>

#include "frame/writer.h"
#include "text/code_page.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kTopicEnd = "[STOP]";

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

std::string ReadTextFile(const window::Files& files, std::string_view path) {
    return text::FromCodePage(files.Read(path));
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
        target.SetContent(WriteMarkup(form, font_name, font_size, ReadTopic(form.files, path, tag)));
        return true;
    } catch (const numeric::RuntimeFailure&) {
        form.boxes.Tell("No pude cargar el archivo.");
        return false;
    }
}

}  // namespace tavrelo::frame
