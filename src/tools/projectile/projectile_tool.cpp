#include "tools/projectile/projectile_tool.h"

#include <utility>

#include "frame/points_board.h"
#include "frame/points_strip.h"
#include "frame/writer.h"
#include "numeric/overloaded.h"
#include "tools/projectile/trajectory_graph.h"
#include "window/pointer.h"
#include "window/questions.h"

namespace tavrelo::tools::projectile {
namespace {

using mechanics::points::Stage;
using mechanics::projectile::Outcome;
using mechanics::projectile::Place;
using mechanics::projectile::Procedure;
using mechanics::projectile::Special;
using mechanics::projectile::SpeedMode;
using mechanics::projectile::Step;
using text::Refusal;

constexpr std::string_view kSplitPrompt =
    "Haz un clic en este espacio para separar los puntos de uno y otro móvil";
constexpr double kSplitPromptLeft = 138;  // pixels

// The last two rows of the table, by how the speed of the point is given.
constexpr int kSpeedRows[] = {mechanics::points::kMagnitudeRow, mechanics::points::kDirectionRow};
constexpr std::string_view kPolarLabels[] = {" v", " θ"};
constexpr std::string_view kComponentLabels[] = {" vx", " vy"};
constexpr text::Color kPolarCell = text::kWhite;
constexpr text::Color kComponentCell = text::Rgb(0xE0, 0xE0, 0xE0);

}  // namespace

Projectile::Projectile(window::Form1& form, frame::PointsPanel& panel, frame::ToolSwitch& tool_switch)
    : m_form(form), m_panel(panel), m_tool_switch(tool_switch) {}

frame::ToolHooks Projectile::Hooks() {
    return {.on_entry = [this] { Enter(); }, .invitation = frame::kPointsInvitation};
}

void Projectile::Enter() {
    m_dragged = 0;
    DropPick();
    m_panel.Enter(*this);
    m_panel.ShowRowArguments(ProcedureOfRow(view.procedure_row).needs);
    if (view.procedure_entry >= 0)
        m_panel.ShowEntryArguments(SpecialOfEntry(view.procedure_entry).needs);
    else
        m_panel.ShowEntryArguments({});
    ShowModes();
    ShowPointer();
    ShowGraph(m_shows_graph);
    m_panel.FocusTable(m_problem.configuration.IsConfigured());
}

const frame::PointsTexts& Projectile::Texts() const { return ProjectileTexts(); }

std::optional<frame::TopicPlace> Projectile::HelpTopic(frame::PointsHelp button) const {
    return ProjectileTopic(button, view.procedure_row, view.procedure_entry);
}

// The strip.

void Projectile::Configure(int configuration) {
    m_dragged = 0;
    m_problem = mechanics::projectile::Reconfigured(m_problem, configuration);
    ShowModes();
    if (m_problem.configuration.stage == Stage::Pending)
        return frame::PaintStripPrompt(m_controls.picAccel.Canvas(), kSplitPrompt, kSplitPromptLeft);
    PaintStrip(m_controls.picAccel.Canvas(), m_problem);
    m_panel.FocusColumn(1);
}

void Projectile::PressStrip(const window::MouseStroke& stroke) {
    m_dragged = 0;
    const StripMeaning meaning = MeaningOfPress(stroke, m_problem.configuration.stage);
    switch (meaning.action) {
        case StripAction::AskConfiguration:
            return m_form.boxes.Tell(mechanics::projectile::kConfigureFirst);
        case StripAction::ClickBand:
            return ClickBand(meaning);
        case StripAction::StartDrag:
            m_dragged = meaning.column;
            return;
        case StripAction::RunLabel:
            return RunLabel(meaning);
        case StripAction::ClearPoint:
            return ClearPoint(meaning.column);
        case StripAction::Nothing:
            return;
    }
}

void Projectile::ReleaseStrip(const window::MouseStroke& stroke) {
    const int source = std::exchange(m_dragged, 0);
    const auto end = MeaningOfRelease(stroke);
    if (source == 0 || !end || end->column == source)
        return;
    if (TakeProblem(WithPointDragged(m_problem, source, end->column, end->copies, m_form.publics.Decimals)))
        m_panel.FocusColumn(end->column);
}

std::string Projectile::PointName(int column) const {
    return frame::NameOfPoint(m_problem.configuration, column);
}

std::vector<window::PictureCell> Projectile::StripCells() const { return projectile::StripCells(m_problem); }

void Projectile::ClickBand(const StripMeaning& meaning) {
    const bool divides = !m_problem.configuration.IsConfigured();
    if (!TakeProblem(WithBandClicked(m_problem, meaning.position, m_form.publics.Decimals)))
        return;
    m_panel.FocusColumn(divides ? 1 : meaning.column);
}

void Projectile::ClearPoint(int column) {
    m_problem = WithPointCleared(m_problem, column);
    ShowProblem();
    m_panel.FocusColumn(column);
}

void Projectile::RunLabel(const StripMeaning& meaning) {
    const auto found = Locate(m_problem.configuration, meaning.position);
    if (!found)
        return;
    const Place place = {found->mover, found->point};
    if (meaning.shortcut == Shortcut::OtherSide) {
        TakeProblem(WithOtherSide(m_problem, place, m_form.publics.Decimals));
        return;
    }
    if (meaning.shortcut == Shortcut::Plant)
        m_panel.ChooseRow(kPlantRow);
    if (meaning.shortcut == Shortcut::Substitute)
        m_panel.ChooseRow(kSubstituteRow);
    if (TakesTwoPoints())
        PickPoint(place);
    else
        Take(ClickPoint(m_problem, m_procedure, place, m_form.publics.Decimals));
}

void Projectile::PickPoint(const Place& place) {
    // Whatever becomes of the second click, the next one is a first one again.
    const auto first = m_first_point;
    DropPick();
    if (first)
        return Take(ClickInterval(m_problem, *first, place, !m_walks_path, m_form.publics.Decimals));
    m_first_point = place;
    m_form.SetPointer(window::kPointerArrowHourglass);
}

// Procedures.

bool Projectile::TakesTwoPoints() const { return m_walks_path || m_procedure == Procedure::PathAndGraph; }

void Projectile::ChooseRow(int row) {
    const ProcedureRow& chosen = ProcedureOfRow(row);
    m_procedure = chosen.procedure;
    m_walks_path = false;
    DropPick();
    ShowPointer();
    m_panel.ShowRowArguments(chosen.needs);
}

void Projectile::ChooseEntry(int entry) {
    const SpecialEntry& chosen = SpecialOfEntry(entry);
    m_walks_path = chosen.special == Special::Path;
    DropPick();
    ShowPointer();
    m_panel.ShowEntryArguments(chosen.needs);
    const bool asks_data = !m_walks_path && chosen.special != Special::Crossing;
    m_panel.ShowAnswering(asks_data, !m_walks_path);
    if (asks_data)
        m_form.SetFocus(m_controls.txtProcs);
}

void Projectile::ShowPointer() {
    m_controls.picAccel.SetPointerShape(TakesTwoPoints() ? window::kPointerCross : window::kPointerDefault);
}

void Projectile::DropPick() {
    m_first_point.reset();
    m_form.SetPointer(window::kPointerDefault);
}

void Projectile::RunEntry() {
    if (view.procedure_entry < 0)
        return;
    Take(RunSpecial(m_problem, SpecialOfEntry(view.procedure_entry).special, m_controls.txtProcs.Text(),
                    m_form.publics.Decimals));
}

void Projectile::NewProblem() {
    if (!window::Confirm(m_form.boxes, "Se borrará todo. ¿Estás seguro?"))
        return;
    m_problem = {};
    m_dragged = 0;
    m_controls.pic.Canvas().Cls();
    m_controls.pic.Canvas().Invite(frame::kPointsInvitation);
    m_controls.pic1.Canvas().Cls();
    ShowGraph(false);
    m_panel.ShowNewProblem();
    ShowModes();
}

void Projectile::SwapPictures() { ShowGraph(!m_shows_graph); }

void Projectile::EraseEquations() { Take(mechanics::projectile::EraseEquations(m_problem)); }

// What the mechanics answer.

void Projectile::Take(const Step& step) {
    if (const auto* refusal = std::get_if<Refusal>(&step))
        return m_form.boxes.Tell(refusal->text);
    const auto& outcome = std::get<Outcome>(step);
    if (outcome.problem != m_problem) {
        m_problem = outcome.problem;
        m_controls.pic.Canvas().Invite({});
        ShowProblem();
    }
    for (const mechanics::projectile::Event& event : outcome.events)
        Show(event);
}

/// Takes over a problem whose table was changed; false after a refusal, which is shown.
bool Projectile::TakeProblem(const Replaced& replaced) {
    if (const auto* refusal = std::get_if<Refusal>(&replaced)) {
        m_form.boxes.Tell(refusal->text);
        return false;
    }
    m_problem = std::get<mechanics::projectile::Problem>(replaced);
    ShowProblem();
    return true;
}

void Projectile::Show(const mechanics::projectile::Event& event) {
    using namespace mechanics::projectile;
    std::visit(numeric::Overloaded{
                   [this](const WriteLines& report) {
                       frame::WritePortions(m_form, m_controls.rtbSolve, std::span(&report.lines, 1));
                   },
                   [this](const ClearSlot& band) {
                       frame::ClearBoardLine(m_controls.pic.Canvas(), band.slot, frame::kProjectileBand);
                   },
                   [this](const BoardLine& line) {
                       frame::PrintBoardLine(m_controls.pic.Canvas(), line.slot, line.markup);
                   },
                   [this](const ShowBoard&) { ShowGraph(false); },
                   [this](const mechanics::projectile::ShowGraph& shown) {
                       DrawTrajectories(m_controls.pic1.Canvas(), shown.graph, m_form.publics.Decimals);
                       ShowGraph(true);
                   },
                   [this](const InsertFormula& inserted) { m_controls.rtbExpr.SetText(inserted.formula); },
                   [this](const Box& box) { m_form.boxes.Tell(box.text); },
                   [this](const Question& question) { Ask(question); },
                   [this](const AskLimit& question) { AskForLimit(question); },
               },
               event);
}

void Projectile::Ask(const mechanics::projectile::Question& question) {
    const bool is_offer = question.buttons == mechanics::projectile::Buttons::OkCancel;
    const bool agreed = window::Confirm(m_form.boxes, question.text,
                                        is_offer ? window::Buttons::OkCancel : window::Buttons::YesNo);
    const auto& request = agreed ? question.yes : question.no;
    if (request)
        Take(Continue(m_problem, *request, m_form.publics.Decimals));
}

void Projectile::AskForLimit(const mechanics::projectile::AskLimit& question) {
    const auto typed = m_form.boxes.AskText(question.text, question.title);
    if (typed)
        Take(ContinueWithLimit(m_problem, question.request, *typed, m_form.publics.Decimals));
}

void Projectile::ShowProblem() {
    m_panel.ShowCells();
    ShowModes();
    if (m_problem.configuration.IsConfigured())
        PaintStrip(m_controls.picAccel.Canvas(), m_problem);
}

/// The colour of the speed cells by how the speed is given, and the row labels for the current column.
void Projectile::ShowModes() {
    for (int column = 1; column <= frame::kPointColumns; ++column) {
        const bool components = m_problem.ModeOf(column) == SpeedMode::Components;
        for (const int row : kSpeedRows)
            m_controls.Gd2.SetCellBackColor(row, column, components ? kComponentCell : kPolarCell);
    }
    EnterCell();
}

void Projectile::EnterCell() {
    if (view.column < 1)
        return;  // the column of labels
    const bool components = m_problem.ModeOf(view.column) == SpeedMode::Components;
    const auto& labels = components ? kComponentLabels : kPolarLabels;
    for (std::size_t k = 0; k < std::size(kSpeedRows); ++k)
        m_controls.Gd2.SetCell(kSpeedRows[k], 0, std::string(labels[k]));
}

void Projectile::ShowGraph(bool shows) {
    m_shows_graph = shows;
    m_tool_switch.ShowPic1(shows);
    m_controls.cmdSeeEqns.SetCaption(shows ? "Ver Ecuacs." : "Ver Gráfico");
}

}  // namespace tavrelo::tools::projectile
