#include "tools/calculator/calculator_tool.h"

#include "drawing/print_markup.h"
#include "tools/calculator/calculation.h"
#include "window/guarded.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr std::string_view kRoutineFailed = "Falló la rutina. Revisa los argumentos.";

constexpr double kPromptSize = 8;  // points
constexpr double kLeft = 6;        // pixels
constexpr double kTop = 4;         // pixels from the top of the panel
constexpr text::Color kTitleColor = text::Rgb(0, 0, 128);

void PrintLine(window::Recorder& surface, std::string_view markup, text::Color color) {
    surface.DescribeByTexts();
    surface.ForeColor = color;
    drawing::PrintMarkup(surface, markup, kLeft, surface.FromBottom(kTop), text::kTextFont, kPromptSize);
}

}  // namespace

CalculatorTool::CalculatorTool(window::Form1& form, frame::SharedExpression& expression,
                               frame::DirectionClock& clock)
    : m_form(form), m_expression(expression), m_clock(clock) {
    const auto calculate = [this] { Calculate(); };
    window::OnClick(form, m_controls.cmdCalculate, calculate, kRoutineFailed);
    m_grid.OnCalculate = [this] { m_controls.cmdCalculate.UserClick(); };
    m_clock.GiveVectorTo(window::Tool::Calculator, [this] { EnterVector(); });
}

frame::ToolHooks CalculatorTool::Hooks() {
    frame::ToolHooks hooks;
    hooks.invitation = "Elige una rutina, escribe sus argumentos en la tabla y selecciónalos.";
    hooks.on_entry = [this] {
        m_controls.lblVorF.SetCaption("Vector:");
        m_controls.fraDirec.SetEnabled(true);
        m_clock.Draw();
        m_form.SetFocus(m_controls.gd);
    };
    return hooks;
}

void CalculatorTool::ShowArgs(int routine) {
    m_controls.picArgs1.Canvas().Cls();
    m_controls.picArgs2.Canvas().Cls();
    const Routine* found = FindRoutine(routine);
    if (!found)
        return;
    PrintLine(m_controls.picArgs1.Canvas(), found->title, kTitleColor);
    PrintLine(m_controls.picArgs2.Canvas(), found->prompt, text::kBlack);
}

/// The typed vector goes into the current cell, and the next one waits for another.
void CalculatorTool::EnterVector() {
    window::TextBox& box = m_controls.txtVector;
    if (box.Text().empty())
        return;
    m_grid.PutInCurrentCell(box.Text());
    box.SetText("");
}

void CalculatorTool::Calculate() {
    m_grid.EndCopyMode();
    const window::CMousePtr busy(m_form);
    const Routine* routine = FindRoutine(m_form.publics.ProcNumber);
    if (!routine)
        return;
    RoutineRun run{m_form, m_controls, m_expression, m_engine, SolveParticle, m_form.publics.Decimals};
    if (const Outcome refusal = Perform(*routine, run)) {
        m_grid.ShowSelectionSize();
        m_form.boxes.Tell(refusal->text);
    }
}

}  // namespace tavrelo::tools::calculator
