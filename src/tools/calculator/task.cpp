#include "tools/calculator/task.h"

#include "frame/writer.h"
#include "numeric/ode.h"
#include "text/markup.h"
#include "text/number_text.h"

namespace tavrelo::tools::calculator {

Outcome Task::Parse(const std::string& text, const std::string& typed) {
    try {
        expression.Get().SetExpression(text);
    } catch (const numeric::RuntimeFailure&) {
        expression.Renew();
        throw;
    }
    if (expression.Get().ErrorCode() == 0)
        return std::nullopt;
    text::Refusal refusal = WrongFormula(typed, expression.Get().ErrorDescription());
    expression.Renew();
    return refusal;
}

void Task::TellTooManySteps() {
    form.boxes.ShowMessage(numeric::kTooManySteps, numeric::kTooManyStepsTitle, window::Buttons::Ok);
}

void Task::Report(const std::vector<std::string>& lines) { frame::WriteLines(form, form.rtbCalc, lines); }

std::string Task::ShownFormula() const { return text::EscapeMarks(typed_formula); }

std::string Task::Shown(double number) const { return text::NumText(number, decimals).Text(); }

std::string Task::Bare(double number) const { return text::RoundedText(number, decimals); }

}  // namespace tavrelo::tools::calculator
