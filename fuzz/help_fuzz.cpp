// Whatever bytes a help file holds: each topic that the program asks for is shown or refused with one
// message, and what is shown is text.

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/help_files.h"
#include "frame/help_topics.h"
#include "harness.h"
#include "numeric/checked.h"
#include "text/code_page.h"
#include "text/utf8.h"
#include "window/form1.h"

namespace {

using namespace tavrelo;
using fuzz::Require;

/// A world whose files all hold the same bytes.
struct World : window::Boxes, window::Clipboard, window::Printer, window::Files {
    window::Answer ShowMessage(std::string_view, std::string_view, window::Buttons) override {
        ++messages;
        return window::Answer::Ok;
    }
    std::optional<std::string> AskText(std::string_view, std::string_view) override { return std::nullopt; }
    std::string Text() const override { return {}; }
    void SetText(std::string_view) override {}
    void SetPicture(const window::Recorder&) override {}
    bool Print(const text::RichText&, const window::PageMargins&) override { return false; }
    std::string Read(std::string_view) const override { return bytes; }

    std::string bytes;
    int messages = 0;
    window::Host host{*this, *this, *this, *this};
};

/// The file itself says which topic is asked for: its first heading, which may be any text.
std::string FirstTag(const std::string& file) {
    const std::size_t begin = file.find('[');
    const std::size_t end = file.find(']', begin);
    return begin == std::string::npos || end == std::string::npos ? "MSG"
                                                                  : file.substr(begin + 1, end - begin - 1);
}

void TryTopic(window::Form1& form, World& world, const std::string& tag) {
    constexpr double kSize = 8;
    auto& box = form.Get<window::RichTextBox>("rtbHelp");
    const std::string before = box.Text();
    const int messages = world.messages;
    const bool loaded = frame::LoadTopic(form, box, text::kTextFont, kSize, "\\HelpCalc.txt", tag);
    Require(world.messages == messages + (loaded ? 0 : 1));
    Require(loaded || box.Text() == before);
    Require(text::ToUtf8(text::ToCodePoints(box.Text())) == box.Text());
    if (loaded)
        Require(frame::ReadTopic(world, "", tag).find("[STOP]\r\n") != 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    World world;
    world.bytes.assign(reinterpret_cast<const char*>(data), size);
    window::Form1 form(world.host);
    const std::string file = text::FromCodePage(world.bytes);
    Require(text::CharacterCount(file) == world.bytes.size());
    Require(text::ToUtf8(text::ToCodePoints(file)) == file);
    TryTopic(form, world, FirstTag(file));
    for (const char* tag : {"MSG", "GRAL", "1EXAMPLE", ""})
        TryTopic(form, world, tag);
    return 0;
}
