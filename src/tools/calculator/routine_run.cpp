#include "tools/calculator/routine_run.h"

#include "frame/writer.h"
#include "numeric/ode.h"
#include "text/markup.h"
#include "text/number_text.h"

namespace tavrelo::tools::calculator {

Outcome RoutineRun::Parse(const std::string& text, const std::string& typed) {
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

void RoutineRun::TellTooManySteps() {
    form.boxes.ShowMessage(numeric::kTooManySteps, numeric::kTooManyStepsTitle, window::Buttons::Ok);
}

void RoutineRun::Report(const std::vector<std::string>& lines) {
    frame::WriteLines(form, controls.rtbCalc, lines);
}

std::string RoutineRun::ShownFormula() const { return text::EscapeMarks(typed_formula); }

std::string RoutineRun::Shown(double number) const { return text::NumText(number, decimals).Text(); }

std::string RoutineRun::Bare(double number) const { return text::RoundedText(number, decimals); }

}  // namespace tavrelo::tools::calculator
