#include "checks.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "commands.h"
#include "text/utf8.h"

namespace tavrelo::sessions {
namespace {

using Lines = std::vector<std::string>;

bool IsWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || (character & 0x80) != 0;
}

/// Whether the word stands in the line by itself.
bool HoldsWord(const std::string& line, std::string_view word) {
    for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1)) {
        const bool begins = at == 0 || !IsWordCharacter(line[at - 1]);
        const std::size_t end = at + word.size();
        if (begins && (end == line.size() || !IsWordCharacter(line[end])))
            return true;
    }
    return false;
}

bool HoldsNoNumber(const std::string& line) {
    const std::string small = text::ToLower(line);
    return std::ranges::any_of(
        std::initializer_list<std::string_view>{"nan", "inf", "infinity", "1.#inf", "1.#qnan"},
        [&](std::string_view word) { return HoldsWord(small, word); });
}

/// Boxes that go with something done: they tell what happens next, or refuse a limit after the first click
/// has given the only mover all the points.
constexpr std::string_view kNotices[] = {
    "| Se graficará x(t).",
    "| Cada tramo debe tener al mínimo 2 puntos.",
};

constexpr std::string_view kProblemControls[] = {
    "Gd2", "gdEqui", "gd1", "lstSeps", "lstCoords", "lstSysts", "lstDCL", "rtbSolve", "rtbReg", "pic1",
};

Lines ShownBy(transcript::Session& session, const std::string& command) {
    transcript::Perform(session, command);
    return session.TakeLines();
}

}  // namespace

Contents ContentsOf(transcript::Session& session) {
    Contents contents;
    for (const window::Control* control : session.Window().Controls())
        if (control->Kind() != window::ControlKind::Shape)
            contents[control->Name()] = ShownBy(session, "show " + control->Name());
    return contents;
}

std::optional<std::string> FindNoNumber(const Lines& lines) {
    const auto found = std::ranges::find_if(lines, HoldsNoNumber);
    return found == lines.end() ? std::nullopt : std::optional(*found);
}

std::optional<std::string> FindNoNumber(const Contents& contents) {
    for (const auto& [name, lines] : contents)
        if (const auto line = FindNoNumber(lines))
            return name + ": " + *line;
    return std::nullopt;
}

bool IsRefusal(const Lines& shown) {
    const auto is_heading = [](const std::string& line) {
        return line.starts_with("box ") || line.starts_with("input ");
    };
    if (std::ranges::count_if(shown, is_heading) != 1 || !shown.front().ends_with(" OK"))
        return false;
    return std::ranges::none_of(shown, [](const std::string& line) {
        return std::ranges::find(kNotices, line) != std::end(kNotices);
    });
}

std::optional<std::string> ChangedProblem(const Contents& before, const Contents& after) {
    for (const std::string_view name : kProblemControls) {
        const std::string key(name);
        if (before.at(key) != after.at(key))
            return key;
    }
    return std::nullopt;
}

std::optional<std::string> FirstDifference(const Contents& model, const Contents& window) {
    for (const auto& [name, lines] : model) {
        const Lines& other = window.at(name);
        const auto [here, there] = std::ranges::mismatch(lines, other);
        if (here == lines.end() && there == other.end())
            continue;
        return name + ": model \"" + (here == lines.end() ? std::string() : *here) + "\", window \"" +
               (there == other.end() ? std::string() : *there) + "\"";
    }
    return std::nullopt;
}

}  // namespace tavrelo::sessions
