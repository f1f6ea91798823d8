#include "calc/task.h"

#include "numeric/number_text.h"
#include "numeric/ode.h"
#include "shell/markup.h"
#include "shell/writer.h"

namespace tavrelo::calc {

Outcome Task::Parse(const std::string& text, const std::string& typed) {
    try {
        expression.Get().SetExpression(text);
    } catch (const numeric::RuntimeFailure&) {
        expression.Renew();
        throw;
    }
    if (expression.Get().ErrorCode() == 0)
        return std::nullopt;
    Refusal refusal = WrongFormula(typed, expression.Get().ErrorDescription());
    expression.Renew();
    return refusal;
}

void Task::TellTooManySteps() {
    form.boxes.ShowMessage(numeric::kTooManySteps, numeric::kTooManyStepsTitle, shell::Buttons::Ok);
}

void Task::Report(const std::vector<std::string>& lines) { shell::WriteLines(form, form.rtbCalc, lines); }

std::string Task::ShownFormula() const { return shell::EscapeMarks(typed_formula); }

std::string Task::Shown(double number) const { return numeric::NumText(number, decimals).Text(); }

std::string Task::Bare(double number) const { return numeric::RoundedText(number, decimals); }

}  // namespace tavrelo::calc
