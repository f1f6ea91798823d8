#include "tools/rigid/problem_in_view.h"

#include <algorithm>
#include <utility>

#include "text/number_text.h"
#include "tools/rigid/describe.h"
#include "tools/rigid/force_grid.h"
#include "tools/rigid/force_layout.h"
#include "tools/rigid/rigid_picture.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::RigidProblem;

constexpr const char* kDirectionQuestion = "¿A qué ángulo deseas trazar esta fuerza en el DCL?";

/// The direction that the user answered with; the default one for an answer that is no number.
double DirectionOf(const std::optional<std::string>& answer) {
    if (!answer || !text::IsNum(*answer))
        return kDefaultDirection;
    const text::LiteralReading reading = text::ReadLiteral(*answer);
    return reading.failure ? kDefaultDirection : reading.value;
}

}  // namespace

ProblemInView::ProblemInView(window::Form1& form) : m_form(form), m_controls(form) {
    ArrangeForces(m_controls.gd1);
}

void ProblemInView::Take(RigidProblem problem) {
    m_problem = std::move(problem);
    if (m_problem.backup.empty())
        m_view.backup_looks.clear();
    if (!m_problem.forces.empty())
        return;
    m_view.looks.clear();
    ArrangeForces(m_controls.gd1);
}

void ProblemInView::Take(mechanics::rigid::ForceStep step) {
    m_problem = std::move(step.problem);
    for (const auto& written : step.written) {
        ShowNewForce(LookOf(written));
        AnnounceAdded();
    }
}

void ProblemInView::CopyForces(std::span<const std::size_t> rows, int body) {
    m_problem = mechanics::rigid::WithCopies(m_problem, rows, body);
    for (const std::size_t row : rows)
        ShowNewForce(m_view.looks[row]);
}

/// The first force without a look takes this one and a row of the table.
void ProblemInView::ShowNewForce(ForceLook look) {
    AddForceRow(m_controls.gd1, m_problem.forces[m_view.looks.size()], look);
    m_view.looks.push_back(std::move(look));
}

void ProblemInView::AnnounceAdded() const {
    const std::size_t row = m_view.looks.size() - 1;
    m_form.Announce("Fuerza " + std::to_string(row + 1) + " añadida al sistema " +
                    std::to_string(m_problem.forces[row].body) + ": " +
                    DescribeBodyForce({m_problem, m_view, Decimals()}, row) + ".");
}

void ProblemInView::TakeSolution(const mechanics::rigid::BodyResults& results) {
    m_problem.forces = mechanics::rigid::WithResults(m_problem.forces, results);
    for (std::size_t row = 0; row < m_problem.forces.size(); ++row)
        m_view.looks[row] = SolvedLook(m_view.looks[row], m_problem.forces[row], Decimals());
}

void ProblemInView::RemoveForce(std::size_t row) {
    if (row >= m_problem.forces.size())
        return;
    m_problem = mechanics::rigid::WithoutForce(std::move(m_problem), row);
    m_view.looks.erase(m_view.looks.begin() + static_cast<std::ptrdiff_t>(row));
    m_controls.gd1.RemoveNumberedRow(static_cast<int>(row) + 1);
    m_form.Announce("Fuerza " + std::to_string(row + 1) + " quitada.");
}

void ProblemInView::Backup() {
    m_problem = mechanics::rigid::WithBackup(std::move(m_problem));
    m_view.backup_looks = m_view.looks;
}

void ProblemInView::Restore() {
    if (m_problem.backup.empty())
        return;
    m_problem = mechanics::rigid::Restored(std::move(m_problem));
    m_view.looks.clear();
    ArrangeForces(m_controls.gd1);
    for (const ForceLook& look : m_view.backup_looks)
        ShowNewForce(look);
    Redraw();
}

void ProblemInView::ShowAlone(int system) {
    m_controls.optDCL[system - 1].Choose();
    m_view.shown.fill(false);
    m_view.Show(system, true);
}

void ProblemInView::Hide(int system) {
    m_view.Show(system, false);
    m_controls.optDCL[system - 1].Uncheck();
    m_controls.optShowDCL[system - 1].Uncheck();
    const std::vector<std::string>& bodies = m_controls.lstDCL.Items();
    const auto row = std::ranges::find(bodies, std::to_string(system)) - bodies.begin();
    if (row < std::ssize(bodies))
        m_controls.lstDCL.RemoveItem(static_cast<int>(row));
}

void ProblemInView::HideAll() {
    for (int system = 1; system <= mechanics::rigid::kSystems; ++system)
        Hide(system);
}

void ProblemInView::Redraw() {
    AskDrawDirections();
    Draw();
}

void ProblemInView::AskDrawDirections() {
    for (std::size_t row = 0; row < m_problem.forces.size(); ++row) {
        const mechanics::rigid::BodyForce& force = m_problem.forces[row];
        ForceLook& look = m_view.looks[row];
        if (m_view.IsShown(force.body) && NeedsDirection(force, look))
            look.asked_direction =
                DirectionOf(m_form.boxes.AskText(kDirectionQuestion, window::kProgramTitle));
    }
}

void ProblemInView::Draw() { RedrawAll(m_controls.pic1.Canvas(), {m_problem, m_view, Decimals()}); }

void ProblemInView::DrawOver(const mechanics::rigid::LineRow& line) {
    rigid::DrawOver(m_controls.pic1.Canvas(), m_problem.structure.points, line);
}

void ProblemInView::Refuse(const text::Refusal& refusal, window::TextBox& at_fault) {
    m_form.boxes.Tell(refusal.text);
    m_form.SetFocus(at_fault);
    at_fault.SelectAll();
}

}  // namespace tavrelo::tools::rigid
