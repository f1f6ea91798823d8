#include "tools/particle/particle_tool.h"

#include <array>

#include "frame/writer.h"
#include "mechanics/particle/particle_solver.h"
#include "notation/force_parser.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "tools/particle/force_diagram.h"
#include "window/guard.h"

namespace tavrelo::tools::particle {
namespace {

using window::Answer;
using window::Buttons;

// Indexes of cmdParts.
enum Command { kSolve = 0, kRestore = 1, kUpdate = 2, kCancelLast = 5, kCancelChosen = 6, kNewProblem = 7 };

// Columns of gdEqui.
enum GridCol { kNumber, kForce, kFx, kFy, kGridCols };
constexpr std::array<const char*, kGridCols> kHeadings = {"  #", "Fuerza", "Fx", "Fy"};
constexpr std::array<int, kGridCols> kWidths = {330, 1655, 1450, 1450};  // twips

constexpr std::size_t kSolvableCount = 2;  // forces from which on Resolver makes sense
constexpr double kRotationLimit = 90;      // degrees

}  // namespace

Parts::Parts(window::Form1& form, frame::DirectionClock& clock) : m_form(form), m_clock(clock) {
    ArrangeGdEqui();
    Wire();
}

void Parts::ArrangeGdEqui() {
    window::Grid& grid = m_form.gdEqui;
    grid.Arrange(1, kGridCols, 1, 1);
    for (int col = 0; col < kGridCols; ++col) {
        const auto index = static_cast<std::size_t>(col);
        grid.SetCell(0, col, kHeadings[index]);
        grid.SetColWidth(col, kWidths[index]);
        grid.SetColAlignment(col, col == kNumber ? window::Alignment::Left : window::Alignment::Center);
    }
}

void Parts::Wire() {
    for (const auto& [index, button] : m_form.cmdParts.Items())
        button->OnClick = [this, index = index] {
            window::Guard(m_form.boxes, text::kCommandFailed, [&] { RunCommand(index); });
        };
    m_form.cmdRotangle.OnClick = [this] {
        window::Guard(m_form.boxes, text::kCommandFailed, [this] { RotateAxes(); });
    };
    for (const auto& [index, button] : m_form.cmdExampleEstp.Items())
        button->OnClick = [this, index = index] {
            window::Guard(m_form.boxes, text::kCommandFailed, [&] {
                if (OnExample)
                    OnExample(index);
            });
        };
}

frame::ToolHooks Parts::Hooks() {
    frame::ToolHooks hooks;
    hooks.uses_pic1 = true;
    hooks.on_first_entry = [this] { DrawForceAxes(m_form.pic1.Canvas(), false, 0); };
    hooks.on_entry = [this] {
        m_form.lblVorF.SetCaption("Fuerza:");
        m_form.fraDirec.SetEnabled(m_entering);
        m_clock.Draw();
        m_form.SetFocus(m_form.txtVector);
    };
    return hooks;
}

void Parts::RunCommand(int index) {
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

void Parts::EnterForce() {
    const std::string text = text::Trim(m_form.txtVector.Text());
    if (text.empty())
        return;
    const auto parsed = notation::ParseForce(text, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&parsed)) {
        m_form.boxes.Tell(refusal->text);
        return;
    }
    mechanics::forces::ForceRow row = mechanics::forces::RowOf(std::get<notation::ForceRecord>(parsed));
    if (mechanics::forces::DirectionIsUnknown(row) && !AskDrawDirection(row))
        return;
    const window::Recorder& canvas = m_form.pic1.Canvas();
    PlaceForce(row, m_slots, canvas.Width(), canvas.Height(), frame::GetRotAngle(m_form));
    AddToGrid(row);
    m_forces.push_back(std::move(row));
    DrawForces();
    if (m_forces.size() >= kSolvableCount)
        m_form.cmdParts[kSolve].SetEnabled(true);
    m_form.txtVector.SetText("");
    m_form.SetFocus(m_form.txtVector);
}

bool Parts::AskDrawDirection(mechanics::forces::ForceRow& row) {
    const auto answer = m_form.boxes.AskText(
        "¿En qué dirección (entre -180° y 180°) deseas dibujar esta fuerza en el diagrama?",
        window::kProgramTitle);
    if (!answer || answer->empty())
        return false;
    if (!text::IsNum(*answer)) {
        m_form.boxes.Tell("El ángulo dado no es numérico.");
        return false;
    }
    row[mechanics::forces::DrawDirection] = text::ToNumber(*answer);
    return true;
}

void Parts::AddToGrid(const mechanics::forces::ForceRow& row) {
    m_form.gdEqui.AddRow({std::to_string(m_forces.size() + 1), row[mechanics::forces::GivenText].Text(),
                          row[mechanics::forces::XText].Text(), row[mechanics::forces::YText].Text()});
}

bool Parts::LoadForces(std::span<const std::string> texts) {
    auto loaded = mechanics::forces::ForcesOf(texts, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&loaded)) {
        m_form.boxes.Tell(refusal->text);
        return false;
    }
    EraseForces();
    for (mechanics::forces::ForceRow& row : std::get<mechanics::forces::ForceTable>(loaded)) {
        AddToGrid(row);
        m_forces.push_back(std::move(row));
    }
    PlaceAllForces();
    return true;
}

bool Parts::SolveAndReport() {
    auto outcome = mechanics::particle::SolveEquilibrium(m_forces, m_form.publics.Decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome)) {
        m_form.boxes.Tell(refusal->text);
        return false;
    }
    if (const auto* known = std::get_if<mechanics::particle::NothingToSolve>(&outcome))
        frame::WriteLines(m_form, m_form.rtbCalc, known->report);
    if (auto* solution = std::get_if<mechanics::particle::Solution>(&outcome))
        Take(std::move(*solution));
    if (auto* choice = std::get_if<mechanics::particle::Choice>(&outcome)) {
        const Answer answer = m_form.boxes.ShowMessage(choice->question, choice->title, Buttons::YesNo);
        Take(std::move(choice->solutions[answer == Answer::Yes ? 0 : 1]));
    }
    return true;
}

void Parts::Take(mechanics::particle::Solution solution) {
    m_forces = std::move(solution.table);
    frame::WriteLines(m_form, m_form.rtbCalc, solution.report);
    DrawForces();
}

void Parts::Solve() {
    if (m_forces.empty())
        return;
    m_backup = m_forces;
    if (!SolveAndReport())
        return;
    SetEntering(false);
    m_form.cmdParts[kSolve].SetEnabled(false);
    m_form.cmdParts[kRestore].SetEnabled(true);
    m_form.cmdParts[kUpdate].SetEnabled(true);
    m_form.cmdParts[kCancelLast].SetEnabled(false);
    m_form.cmdParts[kCancelChosen].SetEnabled(false);
    m_form.tabCalc.SetCurrent(0);
}

void Parts::Restore() {
    if (m_forces.empty() || m_backup.empty())
        return;
    m_forces = m_backup;
    DrawForces();
    SetEntering(true);
    m_form.cmdParts[kSolve].SetEnabled(true);
    m_form.cmdParts[kRestore].SetEnabled(false);
    m_form.cmdParts[kUpdate].SetEnabled(false);
    m_form.cmdParts[kCancelLast].SetEnabled(true);
    m_form.cmdParts[kCancelChosen].SetEnabled(true);
}

void Parts::Update() {
    if (m_forces.empty())
        return;
    const std::vector<std::string> report = UpdateReport();
    const int decimals = m_form.publics.Decimals;
    for (std::size_t k = 0; k < m_forces.size(); ++k) {
        mechanics::forces::ForceRow& row = m_forces[k];
        const int grid_row = static_cast<int>(k) + 1;
        m_form.gdEqui.SetCell(grid_row, kForce, row[mechanics::forces::GivenText].Text());
        m_form.gdEqui.SetCell(grid_row, kFx,
                              text::RoundedText(row[mechanics::forces::XComponent].Number(), decimals));
        m_form.gdEqui.SetCell(grid_row, kFy,
                              text::RoundedText(row[mechanics::forces::YComponent].Number(), decimals));
        row[mechanics::forces::Colour] = mechanics::forces::kKnown;
    }
    DrawForces();
    m_form.cmdParts[kSolve].SetEnabled(true);
    for (const Command command : {kRestore, kUpdate, kCancelLast, kCancelChosen})
        m_form.cmdParts[command].SetEnabled(false);
    SetEntering(true);
    frame::WriteLines(m_form, m_form.rtbCalc, report);
}

std::vector<std::string> Parts::UpdateReport() const {
    std::vector<std::string> lines = {"Equilibrio bajo las siguientes fuerzas:"};
    const auto rounded = [this](const text::Value& value) {
        return text::RoundedText(value.Number(), m_form.publics.Decimals);
    };
    for (const mechanics::forces::ForceRow& row : m_forces)
        lines.push_back("(" + rounded(row[mechanics::forces::XComponent]) + ", " +
                        rounded(row[mechanics::forces::YComponent]) + ") = (" +
                        rounded(row[mechanics::forces::Magnitude]) + " #angu " +
                        rounded(row[mechanics::forces::Direction]) + ")");
    return lines;
}

void Parts::CancelLast() {
    if (m_form.gdEqui.Rows() <= 1)
        return;
    if (m_forces.size() <= 1) {
        EraseForces();
        DrawForceAxes(m_form.pic1.Canvas(), false, frame::GetRotAngle(m_form));
    } else {
        m_forces.pop_back();
        m_form.gdEqui.RemoveRow(m_form.gdEqui.Rows() - 1);
        DrawForces();
    }
    m_form.SetFocus(m_form.txtVector);
}

void Parts::CancelChosen() {
    if (m_form.gdEqui.Rows() <= 1)
        return;
    const int chosen = m_form.gdEqui.Row() < 1 ? 1 : m_form.gdEqui.Row();
    if (m_forces.size() <= 1) {
        EraseForces();
        DrawForceAxes(m_form.pic1.Canvas(), false, frame::GetRotAngle(m_form));
    } else {
        m_form.gdEqui.RemoveNumberedRow(chosen);
        m_forces.erase(m_forces.begin() + (chosen - 1));
        PlaceAllForces();
        DrawForces();
    }
    m_form.SetFocus(m_form.txtVector);
}

void Parts::PlaceAllForces() {
    m_slots.Clear();
    const window::Recorder& canvas = m_form.pic1.Canvas();
    for (mechanics::forces::ForceRow& row : m_forces)
        PlaceForce(row, m_slots, canvas.Width(), canvas.Height(), frame::GetRotAngle(m_form));
}

void Parts::EraseForces() {
    m_slots.Clear();
    m_forces.clear();
    ArrangeGdEqui();
}

void Parts::AskForNewProblem() {
    if (m_form.boxes.ShowMessage("Se borrará todo. ¿Deseas hacerlo?", window::kProgramTitle,
                                 Buttons::YesNo) != Answer::Yes)
        return;
    EraseForces();
    m_backup.clear();
    SetEntering(true);
    m_form.txtAtan.SetText("");
    m_form.txtVector.SetText("");
    m_form.rtbCalc.SetContent({});
    for (const Command command : {kSolve, kRestore, kUpdate})
        m_form.cmdParts[command].SetEnabled(false);
    for (const Command command : {kCancelLast, kCancelChosen, kNewProblem})
        m_form.cmdParts[command].SetEnabled(true);
    m_form.cmdRotangle.SetCaption(frame::RotationCaption(0));
    m_form.lbltxtAngle.SetTooltip(frame::AngleTip(0));
    m_clock.Reset();
    DrawForceAxes(m_form.pic1.Canvas(), false, 0);
}

void Parts::RotateAxes() {
    const auto answer =
        m_form.boxes.AskText("Especifica el ángulo de rotación (entre -90 y 90).", window::kProgramTitle);
    if (!answer || answer->empty())
        return;
    if (!text::IsNum(*answer)) {
        m_form.boxes.Tell("El valor dado no es numérico.");
        return;
    }
    const double rotation = text::ToNumber(*answer);
    if (rotation < -kRotationLimit || rotation > kRotationLimit) {
        m_form.boxes.Tell("El ángulo se sale del intervalo permitido.");
        return;
    }
    m_form.cmdRotangle.SetCaption(frame::RotationCaption(rotation));
    m_form.lbltxtAngle.SetTooltip(frame::AngleTip(rotation));
    m_form.txtAngle.SetText("0");
    m_clock.Draw();
    DrawForceAxes(m_form.pic1.Canvas(), false, rotation);
    DrawForces();
}

void Parts::DrawForces() {
    tools::particle::DrawForces(m_form.pic1.Canvas(), m_engine, m_forces, frame::GetRotAngle(m_form));
}

void Parts::SetEntering(bool entering) {
    m_entering = entering;
    m_form.fraDirec.SetEnabled(entering);
}

}  // namespace tavrelo::tools::particle
