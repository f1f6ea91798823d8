#include "window/questions.h"

#include "text/number_text.h"

namespace tavrelo::window {

std::size_t AskWhichSolution(Boxes& boxes, std::string_view question, std::string_view title) {
    return boxes.ShowMessage(question, title, Buttons::YesNo) == Answer::Yes ? 0 : 1;
}

bool Confirm(Boxes& boxes, std::string_view question, Buttons buttons) {
    const Answer answer = boxes.ShowMessage(question, kProgramTitle, buttons);
    return answer == Answer::Yes || (answer == Answer::Ok && buttons == Buttons::OkCancel);
}

std::optional<double> AskNumber(Boxes& boxes, const NumberQuestion& question) {
    const auto answer = boxes.AskText(question.prompt, kProgramTitle);
    if (!answer || answer->empty())
        return std::nullopt;
    if (text::IsNum(*answer))
        return text::ToNumber(*answer);
    boxes.Tell(question.not_a_number);
    return std::nullopt;
}

}  // namespace tavrelo::window
