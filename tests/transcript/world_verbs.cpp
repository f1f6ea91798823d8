#include <algorithm>

#include "frame/writer.h"
#include "text/code_page.h"
#include "text/utf8.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// The text with a real line end for each "\n" that is written in it.
std::string WithLineEnds(std::string_view text) { return text::ReplaceAll(text, "\\n", kLineEnd); }

struct AnswerName {
    std::string_view name;
    window::Answer answer;
};
constexpr AnswerName kAnswers[] = {
    {"Yes", window::Answer::Yes},
    {"No", window::Answer::No},
    {"OK", window::Answer::Ok},
    {"Cancel", window::Answer::Cancel},
};

window::Answer ReadAnswer(std::string_view name) {
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
    session.driver.World().files.Put(name, text::ToCodePage(WithLineEnds(arguments.Rest())));
}

void RenderMarkup(Session& session, Arguments& arguments) {
    frame::WriteMarkup(session.Window(), text::kTextFont, frame::kReportFontSize,
                       WithLineEnds(arguments.Rest()));
}

}  // namespace tavrelo::transcript
