#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::transcript {

/// A transcript that cannot be played: a malformed file, an unknown name or a command that cannot be carried
/// out.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::string_view kCommandMark = "> ";

/// A line that a command is expected to show, without the "\" that escapes its beginning.
struct ShownLine {
    int line_number = 0;
    std::string text;
};

/// One command with what it is expected to show.
struct Step {
    int line_number = 0;
    std::string command;               // without the "> " in front
    std::vector<ShownLine> expected;   // blank lines are not kept
    std::vector<std::string> remarks;  // the comments and blank lines up to the next command, as they stand
};

/// A parsed transcript. Lines are numbered from 1.
struct Script {
    std::vector<std::string> opening_remarks;
    std::vector<Step> steps;
};

/// Parses the text of a file. Fails with ScriptError when it is empty, holds no command, is not valid UTF-8,
/// does not end in a line end, or shows a line before the first command.
Script ParseScript(std::string_view text);

/// A shown line as it is written in a transcript: with "\" in front where it would be read as something else.
std::string EscapedLine(std::string_view line);

}  // namespace tavrelo::transcript
