#include "statics/rigid_board.h"

#include <algorithm>
#include <iterator>

#include "numeric/number_text.h"
#include "shell/guard.h"
#include "statics/rigid_grid.h"

namespace tavrelo::statics {
namespace {

/// The direction that the user answered with; the default one for an answer that is no number.
double DirectionOf(const std::optional<std::string>& answer) {
    if (!answer || !numeric::IsNum(*answer))
        return kDefaultDrawDirection;
    const numeric::LiteralReading reading = numeric::ReadLiteral(*answer);
    return reading.failure ? kDefaultDrawDirection : reading.value;
}

}  // namespace

void RigidBoard::Redraw() {
    AskDrawDirections();
    Draw();
}

void RigidBoard::AskDrawDirections() {
    for (BodyForce& force : m_problem.forces)
        if (m_problem.IsShown(force.body) && NeedsDrawDirection(force))
            SetDrawDirection(
                force, DirectionOf(m_form.boxes.AskText("¿A qué ángulo deseas trazar esta fuerza en el DCL?",
                                                        shell::kProgramTitle)));
}

void RigidBoard::Draw() {
    RedrawAll(m_form.pic1.Canvas(), {.points = m_problem.points,
                                     .lines = m_problem.lines,
                                     .systems = m_problem.systems,
                                     .forces = m_problem.forces,
                                     .shown = m_problem.shown,
                                     .decimals = Decimals()});
}

void RigidBoard::DrawOver(const LineRow& line) {
    statics::DrawOver(m_form.pic1.Canvas(), m_problem.points, line);
}

void RigidBoard::AddForce(BodyForce force) {
    m_problem.forces.push_back(std::move(force));
    AddGridRow(m_problem.forces.back());
}

void RigidBoard::AddGridRow(const BodyForce& force) {
    m_form.gd1.AddRow({std::to_string(m_form.gd1.Rows()), std::to_string(force.body), force.point, force.text,
                       force.force[XText].Text(), force.force[YText].Text(), force.couple_text});
}

void RigidBoard::RemoveForce(std::size_t row) {
    m_problem.forces.erase(m_problem.forces.begin() + static_cast<std::ptrdiff_t>(row) - 1);
    m_form.gd1.RemoveNumberedRow(static_cast<int>(row));
}

void RigidBoard::ShowForces() {
    ArrangeGd1(m_form);
    for (const BodyForce& force : m_problem.forces)
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
    for (int system = 1; system <= kSystems; ++system)
        Hide(system);
}

void RigidBoard::DropDiagrams() {
    HideAll();
    m_problem.forces.clear();
    m_problem.backup.clear();
    ArrangeGd1(m_form);
}

void RigidBoard::Refuse(const Refusal& refusal, shell::TextBox& at_fault) {
    m_form.boxes.Tell(refusal.text);
    m_form.SetFocus(at_fault);
    at_fault.SelectAll();
}

shell::Event RigidBoard::Guarded(shell::Event handler) {
    return
        [this, handler = std::move(handler)] { shell::Guard(m_form.boxes, shell::kCommandFailed, handler); };
}

std::function<bool(char32_t)> RigidBoard::OnEnter(shell::Event handler) {
    return [run = Guarded(std::move(handler))](char32_t character) {
        if (character != shell::kEnterCharacter)
            return false;
        run();
        return true;
    };
}

}  // namespace tavrelo::statics
