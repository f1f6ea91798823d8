#include "script.h"

#include "text/utf8.h"
#include "text_lines.h"

namespace tavrelo::transcript {
namespace {

constexpr std::string_view kCommentMark = "# ";
constexpr char kEscape = '\\';

bool IsValidUtf8(std::string_view text) { return text::ToUtf8(text::ToCodePoints(text)) == text; }

bool IsComment(std::string_view line) { return line == "#" || line.starts_with(kCommentMark); }

bool IsRemark(std::string_view line) { return IsComment(line) || WithoutTrailingBlanks(line).empty(); }

void CheckFile(std::string_view text) {
    if (text.empty())
        throw ScriptError("the file is empty");
    if (!IsValidUtf8(text))
        throw ScriptError("the file is not valid UTF-8");
    if (!text.ends_with('\n'))
        throw ScriptError("the file does not end in a line end");
}

class Parser {
  public:
    void Take(const std::string& line) {
        ++m_line_number;
        if (IsRemark(line))
            Remarks().push_back(line);
        else if (line.starts_with(kCommandMark))
            m_script.steps.push_back({m_line_number, line.substr(kCommandMark.size()), {}, {}});
        else
            TakeShown(line);
    }

    Script Finish() {
        if (m_script.steps.empty())
            throw ScriptError("the file has no command");
        return std::move(m_script);
    }

  private:
    std::vector<std::string>& Remarks() {
        return m_script.steps.empty() ? m_script.opening_remarks : m_script.steps.back().remarks;
    }

    void TakeShown(const std::string& line) {
        if (m_script.steps.empty())
            throw ScriptError("line " + std::to_string(m_line_number) + " stands before the first command");
        const bool escaped = line.front() == kEscape;
        m_script.steps.back().expected.push_back({m_line_number, escaped ? line.substr(1) : line});
    }

    Script m_script;
    int m_line_number = 0;
};

}  // namespace

Script ParseScript(std::string_view text) {
    CheckFile(text);
    Parser parser;
    for (const std::string& line : TextLines(text))
        parser.Take(line);
    return parser.Finish();
}

std::string EscapedLine(std::string_view line) {
    const bool needs_escape = IsComment(line) || line.starts_with(kCommandMark) || line.starts_with(kEscape);
    return (needs_escape ? std::string(1, kEscape) : std::string()) + std::string(line);
}

}  // namespace tavrelo::transcript
