#include "options.h"

#include <charconv>
#include <string_view>

#include "script.h"

namespace tavrelo::transcript {
namespace {

/// Takes the arguments one by one.
class CommandLine {
  public:
    explicit CommandLine(std::span<const char* const> arguments) : m_rest(arguments) {}

    bool AtEnd() const { return m_rest.empty(); }
    std::string_view Next() {
        const std::string_view argument = m_rest.front();
        m_rest = m_rest.subspan(1);
        return argument;
    }
    std::string_view ValueOf(std::string_view option) {
        if (AtEnd())
            throw ScriptError(std::string(option) + " needs a value");
        return Next();
    }

  private:
    std::span<const char* const> m_rest;
};

int Percent(std::string_view text) {
    int percent = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), percent);
    if (error != std::errc() || stop != text.data() + text.size() || percent <= 0)
        throw ScriptError("\"" + std::string(text) + "\" is no percentage");
    return percent;
}

void Take(Options& options, std::string_view argument, CommandLine& line) {
    if (argument == "--window")
        options.window = true;
    else if (argument == "--print")
        options.print = true;
    else if (argument == "--tree")
        options.tree = true;
    else if (argument == "--maximised")
        options.driver.is_maximised = true;
    else if (argument == "--dark")
        options.driver.is_dark = true;
    else if (argument == "--contrast")
        options.driver.has_contrast = true;
    else if (argument == "--pictures")
        options.pictures = line.ValueOf(argument);
    else if (argument == "--zoom")
        options.driver.zoom_percent = Percent(line.ValueOf(argument));
    else if (argument.starts_with("--"))
        throw ScriptError("there is no option " + std::string(argument));
    else
        options.paths.emplace_back(argument);
}

}  // namespace

Options ParseOptions(std::span<const char* const> arguments) {
    Options options;
    CommandLine line(arguments);
    while (!line.AtEnd())
        Take(options, line.Next(), line);
    if (options.paths.empty())
        throw ScriptError("no file or folder is given");
    return options;
}

std::string UsageText() {
    return "transcript [--window] [--print] [--tree] [--pictures FOLDER] [--zoom PERCENT] "
           "[--maximised] [--dark] [--contrast] FILE_OR_FOLDER...";
}

}  // namespace tavrelo::transcript
