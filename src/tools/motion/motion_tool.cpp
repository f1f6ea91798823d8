#include "tools/motion/motion_tool.h"

#include <utility>

#include "frame/points_board.h"
#include "frame/points_strip.h"
#include "frame/writer.h"
#include "mechanics/motion/typed_procedures.h"
#include "numeric/overloaded.h"
#include "tools/motion/motion_graph.h"
#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::tools::motion {
namespace {

using mechanics::motion::Outcome;
using mechanics::motion::Procedure;
using mechanics::motion::Step;
using mechanics::points::PointPlace;
using mechanics::points::Stage;
using text::Refusal;

}  // namespace

Motion::Motion(window::Form1& form, frame::PointsPanel& panel, frame::ToolSwitch& tool_switch)
    : m_form(form), m_panel(panel), m_tool_switch(tool_switch), m_accelerations(form), m_results(form) {
    BindAccelerations();
    BindResults();
}

void Motion::BindAccelerations() {
    m_accelerations.OnTyped = [this](std::size_t slot, const mechanics::points::Cell& content) {
        m_problem.accelerations[slot] = content;
    };
    m_accelerations.OnLeave = [this] { m_panel.FocusColumn(1); };
}

void Motion::BindResults() {
    m_results.OnPass = [this] {
        m_problem.results = m_results.Results();
        m_problem = WithResultsPassed(m_problem, m_results.Shown(), m_form.publics.Decimals);
        m_panel.ShowCells();
    };
}

frame::ToolHooks Motion::Hooks() {
    return {.on_entry = [this] { Enter(); }, .invitation = frame::kPointsInvitation};
}

void Motion::Enter() {
    m_dragged = 0;
    DropPicks();
    m_panel.Enter(*this);
    m_accelerations.Show(m_problem.accelerations);
    m_accelerations.Place(m_problem.configuration);
    m_results.Restore();
    m_panel.ShowRowArguments(ProcedureOfRow(view.procedure_row).needs);
    if (view.procedure_entry >= 0)
        m_panel.ShowEntryArguments(ProcedureOfEntry(view.procedure_entry).needs);
    else
        m_panel.ShowEntryArguments({});
    ShowPointer();
    ShowGraph(m_shows_graph);
    m_panel.FocusTable(m_problem.configuration.IsConfigured());
}

int Motion::SolutionShown() const {
    return m_results.Results().solutions.empty() ? 0 : static_cast<int>(m_results.Shown()) + 1;
}

int Motion::ConfigurationChosen() const {
    constexpr int kNoButton = 4;
    return view.configuration < 0 ? kNoButton : view.configuration;
}

const frame::PointsTexts& Motion::Texts() const { return MotionTexts(); }

void Motion::EraseTable() { m_problem = WithEmptyTable(m_problem); }

std::optional<frame::TopicPlace> Motion::HelpTopic(frame::PointsHelp button) const {
    return MotionTopic(button, view.procedure_row, view.procedure_entry);
}

// The strip.

void Motion::Configure(int configuration) {
    m_dragged = 0;
    m_problem = mechanics::motion::Reconfigured(m_problem, configuration);
    m_accelerations.Show(m_problem.accelerations);
    m_accelerations.Place(m_problem.configuration);
    if (m_problem.configuration.stage == Stage::Pending)
        return PaintPrompt(m_controls.picAccel.Canvas(), configuration);
    PaintMotionStrip(m_controls.picAccel.Canvas(), m_problem.configuration);
    m_accelerations.Enter();
}

void Motion::PressStrip(const window::MouseStroke& stroke) {
    m_dragged = 0;
    const StripMeaning meaning = MeaningOfPress(stroke, m_problem.configuration.stage);
    switch (meaning.action) {
        case StripAction::AskConfiguration:
            return m_form.boxes.Tell("Configura la tabla primero.");
        case StripAction::Divide:
            return Divide(meaning.position);
        case StripAction::StartDrag:
            m_dragged = meaning.column;
            return;
        case StripAction::RunLabel:
            return RunLabel(meaning);
        case StripAction::ClearPoint:
            return ClearPoint(meaning.position);
        case StripAction::Nothing:
            return;
    }
}

void Motion::ReleaseStrip(const window::MouseStroke& stroke) {
    const int source = std::exchange(m_dragged, 0);
    const auto end = MeaningOfRelease(stroke);
    if (source == 0 || !end)
        return;
    const auto place = Locate(m_problem.configuration, end->position);
    if (!place)
        return;
    const int target = ColumnOfPoint(m_problem.configuration, *place);
    if (end->copies)
        m_problem.table.CopyColumn(source, target);
    else
        m_problem.table.MoveColumn(source, target);
    m_panel.ShowCells();
}

std::string Motion::PointName(int column) const {
    return frame::NameOfPoint(m_problem.configuration, column);
}

std::vector<window::PictureCell> Motion::StripCells() const {
    return motion::StripCells(m_problem.configuration);
}

void Motion::Divide(double position) {
    const auto step = ClickBand(m_problem.configuration, position);
    if (step.configuration != m_problem.configuration) {
        m_problem.configuration = step.configuration;
        PaintMotionStrip(m_controls.picAccel.Canvas(), m_problem.configuration);
        m_accelerations.Place(m_problem.configuration);
        if (m_problem.configuration.IsConfigured())
            m_accelerations.Enter();
    }
    if (step.refusal)
        m_form.boxes.Tell(step.refusal->text);
}

void Motion::ClearPoint(double position) {
    const auto place = Locate(m_problem.configuration, position);
    if (!place)
        return;
    const int column = ColumnOfPoint(m_problem.configuration, *place);
    m_problem.table.ClearColumn(column);
    m_panel.ShowCells();
    m_panel.FocusColumn(column);
}

void Motion::RunLabel(const StripMeaning& meaning) {
    const auto place = Locate(m_problem.configuration, meaning.position);
    if (!place)
        return;
    if (meaning.shortcut == Shortcut::OppositeSpeed && TurnToOppositeSpeed(*place))
        return;
    if (meaning.shortcut == Shortcut::Plant)
        m_panel.ChooseRow(kPlantRow);
    if (meaning.shortcut == Shortcut::Substitute)
        m_panel.ChooseRow(kSubstituteRow);
    if (TakesTwoPoints(m_procedure))
        PickPoint(*place);
    else
        Take(ClickPoint(m_problem, m_procedure, *place, m_form.publics.Decimals));
}

bool Motion::TurnToOppositeSpeed(const PointPlace& place) {
    const auto turned = TurnSpeed(m_problem, place, m_form.publics.Decimals);
    if (turned)
        Take(*turned);
    return turned.has_value();
}

// Procedures.

void Motion::ChooseRow(int row) {
    const ProcedureEntry& entry = ProcedureOfRow(row);
    Choose(entry);
    m_panel.ShowRowArguments(entry.needs);
}

void Motion::ChooseEntry(int entry_index) {
    const ProcedureEntry& entry = ProcedureOfEntry(entry_index);
    Choose(entry);
    m_panel.ShowEntryArguments(entry.needs);
    const bool clicks_only = TakesTwoPoints(entry.procedure);
    m_panel.ShowAnswering(!clicks_only, !clicks_only);
    if (!clicks_only)
        m_form.SetFocus(m_controls.txtProcs);
}

void Motion::Choose(const ProcedureEntry& entry) {
    m_procedure = entry.procedure;
    m_problem.awaited_base.reset();
    DropPicks();
    ShowPointer();
}

void Motion::ShowPointer() {
    m_controls.picAccel.SetPointerShape(TakesTwoPoints(m_procedure) ? window::kPointerCross
                                                                    : window::kPointerDefault);
}

void Motion::DropPicks() {
    m_first_point.Forget();
    m_form.SetPointer(window::kPointerDefault);
}

void Motion::PickPoint(const PointPlace& place) {
    // Whatever becomes of this click, when it is the second one the next is a first one again.
    mechanics::motion::PendingPoint picked = m_first_point;
    DropPicks();
    const Step checked = ClickPoint(m_problem, m_procedure, place, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<Refusal>(&checked))
        return m_form.boxes.Tell(refusal->text);
    if (const auto pair = picked.Click(place))
        return RunOnTwoPoints(*pair);
    m_first_point = picked;
    m_form.SetPointer(window::kPointerArrowHourglass);
}

void Motion::RunOnTwoPoints(const mechanics::motion::PointPair& pair) {
    if (m_procedure == Procedure::Graph)
        DrawGraph(pair);
    else
        Take(RunOnPair(m_problem, m_procedure, pair, m_form.publics.Decimals));
}

void Motion::DrawGraph(const mechanics::motion::PointPair& pair) {
    const auto graph = GraphBetween(m_problem, pair.first, pair.second);
    if (const auto* refusal = std::get_if<Refusal>(&graph))
        return m_form.boxes.Tell(refusal->text);
    DrawMotionGraph(m_controls.pic1.Canvas(), std::get<mechanics::motion::MotionGraph>(graph),
                    m_form.publics.Decimals);
    ShowGraph(true);
}

void Motion::RunEntry() {
    if (view.procedure_entry < 0)
        return;
    // A row of the other tab may be in use: the button stands beside the entry and means that.
    const ProcedureEntry& entry = ProcedureOfEntry(view.procedure_entry);
    if (m_procedure != entry.procedure)
        Choose(entry);
    // A motion that waits for its base does so until the next press only.
    const mechanics::motion::Problem asked = m_problem;
    m_problem.awaited_base.reset();
    Take(RunTyped(asked, m_procedure, m_controls.txtProcs.Text(), m_form.publics.Decimals));
}

void Motion::NewProblem() {
    if (!window::Confirm(m_form.boxes, "Se borrará todo. ¿Estás seguro?"))
        return;
    m_problem = {};
    m_dragged = 0;
    m_controls.pic.Canvas().Cls();
    m_controls.pic.Canvas().Invite(frame::kPointsInvitation);
    m_controls.pic1.Canvas().Cls();
    ShowGraph(false);
    m_results.Reset();
    m_panel.ShowNewProblem();
    m_accelerations.Show(m_problem.accelerations);
    m_accelerations.Place(m_problem.configuration);
}

void Motion::SwapPictures() { ShowGraph(!m_shows_graph); }

void Motion::EraseEquations() {
    if (window::Confirm(m_form.boxes, "Confirmar borrado de ecuaciones.", window::Buttons::OkCancel))
        Take(mechanics::motion::EraseEquations(m_problem));
}

// What the mechanics answer.

void Motion::Take(const Step& step) {
    if (const auto* refusal = std::get_if<Refusal>(&step))
        return m_form.boxes.Tell(refusal->text);
    const auto& outcome = std::get<Outcome>(step);
    if (outcome.problem != m_problem) {
        m_problem = outcome.problem;
        m_controls.pic.Canvas().Invite({});
        ShowProblem();
    }
    for (const mechanics::motion::Event& event : outcome.events)
        Show(event);
}

void Motion::Show(const mechanics::motion::Event& event) {
    using namespace mechanics::motion;
    std::visit(numeric::Overloaded{
                   [this](const WriteLines& report) {
                       frame::WritePortions(m_form, m_controls.rtbSolve, std::span(&report.lines, 1));
                   },
                   [this](const ClearSlot& band) {
                       frame::ClearBoardLine(m_controls.pic.Canvas(), band.slot, frame::kMotionBand);
                   },
                   [this](const BoardLine& line) {
                       frame::PrintBoardLine(m_controls.pic.Canvas(), line.slot, line.markup);
                   },
                   [this](const ShowBoard&) { ShowGraph(false); },
                   [this](const ShowResults&) { m_results.Open(m_problem.results); },
                   [this](const Box& box) { m_form.boxes.Tell(box.text); },
                   [this](const Question& question) { Ask(question); },
               },
               event);
}

void Motion::Ask(const mechanics::motion::Question& question) {
    const bool is_offer = question.buttons == mechanics::motion::Buttons::OkCancel;
    const bool agreed = window::Confirm(m_form.boxes, question.text,
                                        is_offer ? window::Buttons::OkCancel : window::Buttons::YesNo);
    const auto& request = agreed ? question.yes : question.no;
    if (request)
        Take(Continue(m_problem, *request, m_form.publics.Decimals));
}

void Motion::ShowProblem() {
    m_panel.ShowCells();
    m_accelerations.Show(m_problem.accelerations);
}

void Motion::ShowGraph(bool shows) {
    m_shows_graph = shows;
    m_tool_switch.ShowPic1(shows);
    m_controls.cmdSeeEqns.SetCaption(shows ? "Ver Ecuacs." : "Ver Gráfico");
}

}  // namespace tavrelo::tools::motion
