#include <algorithm>

#include "numeric/utf8.h"
#include "shell/help_files.h"
#include "shell/writer.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// The text with a real line end for each "\n" that is written in it.
std::string WithLineEnds(std::string_view text) { return numeric::ReplaceAll(text, "\\n", kLineEnd); }

struct AnswerName {
    std::string_view name;
    shell::Answer answer;
};
constexpr AnswerName kAnswers[] = {
    {"Yes", shell::Answer::Yes},
    {"No", shell::Answer::No},
    {"OK", shell::Answer::Ok},
    {"Cancel", shell::Answer::Cancel},
};

shell::Answer ReadAnswer(std::string_view name) {
    const auto* found = std::ranges::find(kAnswers, name, &AnswerName::name);
    if (found == std::end(kAnswers))
        throw ScriptError("there is no answer \"" + std::string(name) + "\"");
    return found->answer;
}

}  // namespace

void QueueAnswer(Session& session, Arguments& arguments) {
    BoxLog& boxes = session.driver.World().box_log;
    const std::string_view answer = arguments.Word();
    if (answer == "=") {
        boxes.QueueText(std::string(arguments.Rest()));
        return;
    }
    boxes.Queue(ReadAnswer(answer));
    arguments.ExpectEnd();
}

void PutOnClipboard(Session& session, Arguments& arguments) {
    session.driver.PutOnClipboard(std::string(arguments.Rest()));
}

void RemoveFiles(Session& session, Arguments& arguments) {
    if (arguments.Word() != "none")
        throw ScriptError("\"none\" is wanted");
    arguments.ExpectEnd();
    session.driver.World().files.RemoveAll();
}

void PutFile(Session& session, Arguments& arguments) {
    const std::string_view name = arguments.Word();
    session.driver.World().files.Put(name, shell::ToCodePage(WithLineEnds(arguments.Rest())));
}

void RenderMarkup(Session& session, Arguments& arguments) {
    shell::WriteMarkup(session.Window(), shell::kTextFont, shell::kReportFontSize,
                       WithLineEnds(arguments.Rest()));
}

}  // namespace tavrelo::transcript
