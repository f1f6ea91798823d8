#include "tools/rigid/rigid_board.h"

#include <algorithm>
#include <iterator>

#include "text/number_text.h"
#include "tools/rigid/rigid_grid.h"
#include "window/guard.h"

namespace tavrelo::tools::rigid {
namespace {

/// The direction that the user answered with; the default one for an answer that is no number.
double DirectionOf(const std::optional<std::string>& answer) {
    if (!answer || !text::IsNum(*answer))
        return mechanics::forces::kDefaultDrawDirection;
    const text::LiteralReading reading = text::ReadLiteral(*answer);
    return reading.failure ? mechanics::forces::kDefaultDrawDirection : reading.value;
}

}  // namespace

void RigidBoard::Redraw() {
    AskDrawDirections();
    Draw();
}

void RigidBoard::AskDrawDirections() {
    for (mechanics::rigid::BodyForce& force : m_problem.forces)
        if (m_problem.IsShown(force.body) && mechanics::rigid::NeedsDrawDirection(force))
            mechanics::rigid::SetDrawDirection(
                force, DirectionOf(m_form.boxes.AskText("¿A qué ángulo deseas trazar esta fuerza en el DCL?",
                                                        window::kProgramTitle)));
}

void RigidBoard::Draw() {
    RedrawAll(m_form.pic1.Canvas(), {.points = m_problem.points,
                                     .lines = m_problem.lines,
                                     .systems = m_problem.systems,
                                     .forces = m_problem.forces,
                                     .shown = m_problem.shown,
                                     .decimals = Decimals()});
}

void RigidBoard::DrawOver(const mechanics::rigid::LineRow& line) {
    tools::rigid::DrawOver(m_form.pic1.Canvas(), m_problem.points, line);
}

void RigidBoard::AddForce(mechanics::rigid::BodyForce force) {
    m_problem.forces.push_back(std::move(force));
    AddGridRow(m_problem.forces.back());
}

void RigidBoard::AddGridRow(const mechanics::rigid::BodyForce& force) {
    m_form.gd1.AddRow({std::to_string(m_form.gd1.Rows()), std::to_string(force.body), force.point, force.text,
                       force.force[mechanics::forces::XText].Text(),
                       force.force[mechanics::forces::YText].Text(), force.couple_text});
}

void RigidBoard::RemoveForce(std::size_t row) {
    m_problem.forces.erase(m_problem.forces.begin() + static_cast<std::ptrdiff_t>(row) - 1);
    m_form.gd1.RemoveNumberedRow(static_cast<int>(row));
}

void RigidBoard::ShowForces() {
    ArrangeGd1(m_form);
    for (const mechanics::rigid::BodyForce& force : m_problem.forces)
        AddGridRow(force);
}

void RigidBoard::Hide(int system) {
    m_problem.Show(system, false);
    m_form.optDCL[system - 1].Uncheck();
    m_form.optShowDCL[system - 1].Uncheck();
    const std::vector<std::string>& bodies = m_form.lstDCL.Items();
    const auto row = std::ranges::find(bodies, std::to_string(system)) - bodies.begin();
    if (row < std::ssize(bodies))
        m_form.lstDCL.RemoveItem(static_cast<int>(row));
}

void RigidBoard::HideAll() {
    for (int system = 1; system <= mechanics::rigid::kSystems; ++system)
        Hide(system);
}

void RigidBoard::DropDiagrams() {
    HideAll();
    m_problem.forces.clear();
    m_problem.backup.clear();
    ArrangeGd1(m_form);
}

void RigidBoard::Refuse(const text::Refusal& refusal, window::TextBox& at_fault) {
    m_form.boxes.Tell(refusal.text);
    m_form.SetFocus(at_fault);
    at_fault.SelectAll();
}

window::Event RigidBoard::Guarded(window::Event handler) {
    return
        [this, handler = std::move(handler)] { window::Guard(m_form.boxes, text::kCommandFailed, handler); };
}

std::function<bool(char32_t)> RigidBoard::OnEnter(window::Event handler) {
    return [run = Guarded(std::move(handler))](char32_t character) {
        if (character != window::kEnterCharacter)
            return false;
        run();
        return true;
    };
}

}  // namespace tavrelo::tools::rigid
