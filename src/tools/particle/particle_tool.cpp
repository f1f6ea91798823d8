#include "tools/particle/particle_tool.h"

#include <array>

#include "drawing/words.h"
#include "frame/writer.h"
#include "mechanics/forces/read_forces.h"
#include "mechanics/particle/particle_solver.h"
#include "notation/force_parser.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "tools/particle/describe.h"
#include "tools/particle/force_diagram.h"
#include "window/enabling.h"
#include "window/grid_columns.h"
#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::tools::particle {
namespace {

// Indexes of cmdParts.
enum Command { kSolve = 0, kRestore = 1, kUpdate = 2, kCancelLast = 5, kCancelChosen = 6, kNewProblem = 7 };

// Columns of gdEqui.
enum GridCol { kNumber, kForce, kFx, kFy, kGridCols };
constexpr std::array<window::GridColumn, kGridCols> kColumns = {{
    {"  #", 330, window::Alignment::Left},
    {"Fuerza", 1655},
    {"Fx", 1450},
    {"Fy", 1450},
}};

constexpr std::string_view kExamplesFile = "\\StatPart.txt";

constexpr std::size_t kSolvableCount = 2;  // forces from which on Resolver makes sense
constexpr double kRotationLimit = 90;      // degrees

constexpr drawing::Noun kLeftForces{"fuerza en la tabla", "fuerzas en la tabla", true};

// A number that the forces must have by now.
double Known(const std::optional<double>& number) {
    if (!number)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "a force is still unknown");
    return *number;
}

}  // namespace

ParticleTool::ParticleTool(window::Form1& form, frame::DirectionClock& clock, frame::HelpPanel& help)
    : m_form(form), m_clock(clock), m_help(help) {
    ArrangeGdEqui();
    Wire();
}

void ParticleTool::ArrangeGdEqui() { window::ArrangeColumns(m_controls.gdEqui, kColumns); }

void ParticleTool::Wire() {
    m_clock.GiveVectorTo(window::Tool::Particle, [this] { EnterForce(); });
    window::OnClick(m_form, m_controls.cmdParts, [this](int index) { RunCommand(index); });
    window::OnClick(m_form, m_controls.cmdRotangle, [this] { RotateAxes(); });
    window::OnClick(m_form, m_controls.cmdExampleEstp, [this](int index) {
        m_help.ShowShortTopic(kExamplesFile, std::to_string(index + 1) + "EXAMPLE");
    });
}

frame::ToolHooks ParticleTool::Hooks() {
    frame::ToolHooks hooks;
    hooks.uses_pic1 = true;
    hooks.on_first_entry = [this] { Draw(); };
    hooks.on_entry = [this] {
        m_controls.lblVorF.SetCaption("Fuerza:");
        m_controls.fraDirec.SetEnabled(m_entering);
        m_clock.Draw();
        m_form.SetFocus(m_controls.txtVector);
    };
    return hooks;
}

void ParticleTool::RunCommand(int index) {
    switch (index) {
        case kSolve:
            return Solve();
        case kRestore:
            return Restore();
        case kUpdate:
            return Update();
        case kCancelLast:
            return CancelLast();
        case kCancelChosen:
            return CancelChosen();
        case kNewProblem:
            return AskForNewProblem();
        default:
            return;
    }
}

void ParticleTool::Enable(Event event) {
    using enum window::Enabling;
    static constexpr window::EnablingRow<Event, 6> kEnabling[] = {
        // Resolver, Restaurar, Actualizar, Cancelar última, Cancelar elegida, entry of forces
        {Event::SecondForce, {On, AsItWas, AsItWas, AsItWas, AsItWas, AsItWas}},
        {Event::Solved, {Off, On, On, Off, Off, Off}},
        {Event::Restored, {On, Off, Off, On, On, On}},
        {Event::Updated, {On, Off, Off, Off, Off, On}},
        {Event::NewProblem, {Off, Off, Off, On, On, On}},
    };
    const auto& buttons = m_controls.cmdParts;
    window::Enable(kEnabling, event,
                   {&buttons[kSolve], &buttons[kRestore], &buttons[kUpdate], &buttons[kCancelLast],
                    &buttons[kCancelChosen], &m_controls.fraDirec});
    if (event != Event::SecondForce)
        m_entering = event != Event::Solved;
}

void ParticleTool::EnterForce() {
    const std::string text = text::Trim(m_controls.txtVector.Text());
    if (text.empty())
        return;
    const auto parsed = notation::ParseForce(text, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&parsed)) {
        m_form.boxes.Tell(refusal->text);
        return;
    }
    const auto& record = std::get<notation::ForceRecord>(parsed);
    const DrawDirection direction = DirectionToDraw(record);
    if (direction.cancelled)
        return;
    AddToGrid(record);
    const auto hour = record.clock ? std::optional(record.clock->hour) : std::nullopt;
    m_forces.Add(record, direction.asked, m_slots.AxisOffset(record.leaves, hour, m_rotation));
    Draw();
    AnnounceAdded();
    if (m_forces.Count() >= kSolvableCount)
        Enable(Event::SecondForce);
    m_controls.txtVector.SetText("");
    m_form.SetFocus(m_controls.txtVector);
}

void ParticleTool::AnnounceAdded() const {
    const std::size_t last = m_forces.Count() - 1;
    m_form.Announce("Fuerza " + std::to_string(m_forces.Count()) +
                    " añadida: " + DescribeForce(m_forces, last, m_form.publics.Decimals) + ".");
}

void ParticleTool::AnnounceRemoved(int number) const {
    const std::string left =
        m_forces.IsEmpty() ? "no queda ninguna." : drawing::Counted(m_forces.Count(), kLeftForces) + ".";
    m_form.Announce("Fuerza " + std::to_string(number) + " quitada: " + left);
}

ParticleTool::DrawDirection ParticleTool::DirectionToDraw(const notation::ForceRecord& record) {
    if (record.clock)
        return {};
    const auto asked = window::AskNumber(
        m_form.boxes, {"¿En qué dirección (entre -180° y 180°) deseas dibujar esta fuerza en el diagrama?",
                       "El ángulo dado no es numérico."});
    return {asked, !asked.has_value()};
}

void ParticleTool::AddToGrid(const notation::ForceRecord& record) {
    m_controls.gdEqui.AddRow(
        {std::to_string(m_controls.gdEqui.Rows()), record.given_text, record.x_text, record.y_text});
}

bool ParticleTool::LoadForces(std::span<const std::string> texts) {
    const auto read = mechanics::forces::ReadForces(texts, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&read)) {
        m_form.boxes.Tell(refusal->text);
        return false;
    }
    EraseForces();
    for (const notation::ForceRecord& record : std::get<std::vector<notation::ForceRecord>>(read)) {
        AddToGrid(record);
        m_forces.Add(record, {}, {});
    }
    m_forces.PlaceAll(m_slots, m_rotation);
    return true;
}

bool ParticleTool::SolveAndReport() {
    auto outcome = mechanics::particle::SolveEquilibrium(m_forces.Forces(), m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome)) {
        m_form.boxes.Tell(refusal->text);
        return false;
    }
    if (const auto* known = std::get_if<mechanics::particle::NothingToSolve>(&outcome))
        frame::WriteLines(m_form, m_controls.rtbCalc, known->report);
    if (auto* solution = std::get_if<mechanics::particle::Solution>(&outcome))
        Take(std::move(*solution));
    if (auto* choice = std::get_if<mechanics::particle::Choice>(&outcome)) {
        const std::string_view title = choice->between_angles ? "" : window::kProgramTitle;
        Take(std::move(choice->solutions[window::AskWhichSolution(m_form.boxes, choice->question, title)]));
    }
    return true;
}

void ParticleTool::Take(mechanics::particle::Solution solution) {
    m_forces.Take(std::move(solution.forces));
    frame::WriteLines(m_form, m_controls.rtbCalc, solution.report);
    Draw();
}

void ParticleTool::Solve() {
    if (m_forces.IsEmpty())
        return;
    m_backup = m_forces;
    if (!SolveAndReport())
        return;
    Enable(Event::Solved);
    m_controls.tabCalc.SetCurrent(0);
}

void ParticleTool::Restore() {
    if (m_forces.IsEmpty() || m_backup.IsEmpty())
        return;
    m_forces = m_backup;
    Draw();
    Enable(Event::Restored);
    m_form.Announce("Fuerzas como antes de resolver.");
}

void ParticleTool::Update() {
    if (m_forces.IsEmpty())
        return;
    const std::vector<std::string> report = UpdateReport();
    const int decimals = m_form.publics.Decimals;
    for (std::size_t k = 0; k < m_forces.Count(); ++k) {
        const notation::Force& force = m_forces.Forces()[k];
        const int row = static_cast<int>(k) + 1;
        m_controls.gdEqui.SetCell(row, kForce, m_forces.Arrows()[k].given_text);
        m_controls.gdEqui.SetCell(row, kFx, text::RoundedText(Known(force.x.number), decimals));
        m_controls.gdEqui.SetCell(row, kFy, text::RoundedText(Known(force.y.number), decimals));
    }
    m_forces.AcceptFound();
    Draw();
    Enable(Event::Updated);
    frame::WriteLines(m_form, m_controls.rtbCalc, report);
}

std::vector<std::string> ParticleTool::UpdateReport() const {
    std::vector<std::string> lines = {"Equilibrio bajo las siguientes fuerzas:"};
    const auto rounded = [this](const std::optional<double>& number) {
        return text::RoundedText(Known(number), m_form.publics.Decimals);
    };
    for (const notation::Force& force : m_forces.Forces())
        lines.push_back("(" + rounded(force.x.number) + ", " + rounded(force.y.number) + ") = (" +
                        rounded(force.magnitude) + " #angu " + rounded(force.direction) + ")");
    return lines;
}

void ParticleTool::CancelLast() {
    window::Grid& grid = m_controls.gdEqui;
    if (grid.Rows() <= 1)
        return;
    const int last = grid.Rows() - 1;
    if (m_forces.Count() <= 1) {
        EraseForces();
    } else {
        m_forces.RemoveLast();
        grid.RemoveRow(grid.Rows() - 1);
    }
    Draw();
    AnnounceRemoved(last);
    m_form.SetFocus(m_controls.txtVector);
}

void ParticleTool::CancelChosen() {
    window::Grid& grid = m_controls.gdEqui;
    if (grid.Rows() <= 1)
        return;
    const int chosen = grid.Row() < 1 ? 1 : grid.Row();
    if (m_forces.Count() <= 1) {
        EraseForces();
    } else {
        grid.RemoveNumberedRow(chosen);
        m_forces.Remove(static_cast<std::size_t>(chosen) - 1);
        m_forces.PlaceAll(m_slots, m_rotation);
    }
    Draw();
    AnnounceRemoved(chosen);
    m_form.SetFocus(m_controls.txtVector);
}

void ParticleTool::EraseForces() {
    m_slots.Clear();
    m_forces = {};
    ArrangeGdEqui();
}

void ParticleTool::AskForNewProblem() {
    if (!window::Confirm(m_form.boxes, "Se borrará todo. ¿Deseas hacerlo?"))
        return;
    EraseForces();
    m_backup = {};
    m_controls.txtAtan.SetText("");
    m_controls.txtVector.SetText("");
    m_controls.rtbCalc.SetContent({});
    Enable(Event::NewProblem);
    m_rotation = 0;
    ShowRotation();
    m_clock.Reset();
    Draw();
}

void ParticleTool::RotateAxes() {
    const auto rotation = window::AskNumber(
        m_form.boxes,
        {"Especifica el ángulo de rotación (entre -90 y 90).", "El valor dado no es numérico."});
    if (!rotation)
        return;
    if (*rotation < -kRotationLimit || *rotation > kRotationLimit) {
        m_form.boxes.Tell("El ángulo se sale del intervalo permitido.");
        return;
    }
    m_rotation = *rotation;
    ShowRotation();
    m_controls.txtAngle.SetText("0");
    m_clock.Draw();
    Draw();
}

void ParticleTool::ShowRotation() {
    m_controls.cmdRotangle.SetCaption("Q = " + text::NumberToText(m_rotation) + "°");
    m_clock.TurnAxes(m_rotation);
}

void ParticleTool::Draw() {
    window::Surface& canvas = m_controls.pic1.Canvas();
    const int decimals = m_form.publics.Decimals;
    DrawForces(canvas, m_forces, m_rotation, decimals);
    canvas.Describe(DescribeForces(m_forces, m_rotation, decimals));
}

}  // namespace tavrelo::tools::particle
