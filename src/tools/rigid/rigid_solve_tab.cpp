#include "tools/rigid/rigid_solve_tab.h"

#include <algorithm>

#include "frame/writer.h"
#include "mechanics/rigid/rigid_report.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "tools/rigid/rigid_grid.h"

namespace tavrelo::tools::rigid {
namespace {

// Indexes of cmdVMb.
enum Command { kSolve = 0, kRestore = 1, kNewProblem = 2, kUpdate = 3 };

}  // namespace

SolveTab::SolveTab(RigidBoard& board) : m_board(board), m_form(board.Form()), m_problem(board.Problem()) {
    for (const auto& [index, option] : m_form.optShowDCL.Items())
        option->SetForeColor(SystemColor(index + 1));
    Wire();
}

void SolveTab::Wire() {
    for (const auto& [index, option] : m_form.optShowDCL.Items())
        option->OnClick = m_board.Guarded([this, system = index + 1] { ShowSystem(system); });
    for (const auto& [index, button] : m_form.cmdVMb.Items())
        button->OnClick = m_board.Guarded([this, index = index] { RunCommand(index); });
    m_form.cmdClearLstDCL.OnClick = m_board.Guarded([this] { ClearList(); });
    m_form.cmdShowIncsEqns.OnClick = m_board.Guarded([this] { ShowEquations(); });
}

void SolveTab::RunCommand(int index) {
    switch (index) {
        case kSolve:
            return SolveDCL();
        case kRestore:
            return Restore();
        case kNewProblem:
            return OnNewProblem();
        case kUpdate:
            return Update();
        default:
            return;
    }
}

/// The system's diagram comes into view beside the others, and its number into the list, chosen.
void SolveTab::ShowSystem(int system) {
    const std::string number = std::to_string(system);
    if (!m_problem.IsDefined(system)) {
        m_form.optShowDCL[system - 1].Uncheck();
        return m_form.boxes.Tell(mechanics::rigid::SystemNotDefined(number).text);
    }
    m_problem.Show(system, true);
    m_board.Redraw();
    window::ListBox& list = m_form.lstDCL;
    if (std::ranges::find(list.Items(), number) == list.Items().end())
        list.AddItem(number);
    list.SetChosen(static_cast<int>(std::ranges::find(list.Items(), number) - list.Items().begin()), true);
}

void SolveTab::ClearList() {
    m_board.HideAll();
    m_board.Draw();
}

std::optional<std::vector<mechanics::rigid::ChosenBody>> SolveTab::ChosenBodies() {
    std::vector<mechanics::rigid::ChosenBody> bodies;
    const std::vector<std::string>& items = m_form.lstDCL.Items();
    for (std::size_t row = 0; row < items.size(); ++row) {
        if (!m_form.lstDCL.IsChosen(static_cast<int>(row)))
            continue;
        const int number = static_cast<int>(text::ToNumber(items[row]));
        window::TextBox& box = m_form.txtRefPt[number - 1];
        const std::string name = text::ToUpper(text::Trim(box.Text()));
        const mechanics::rigid::PointRecord* point = mechanics::rigid::FindPoint(m_problem.points, name);
        if (!point) {
            m_board.Refuse({"El punto de referencia " + name + " del sistema " + items[row] + " no existe."},
                           box);
            return {};
        }
        const bool is_particle = mechanics::rigid::LettersOf(m_problem.LettersOfSystem(number)).size() == 1;
        bodies.push_back({number, is_particle, point->x, point->y});
    }
    if (!bodies.empty())
        return bodies;
    m_form.boxes.Tell("No hay sistemas seleccionados en la lista.");
    return {};
}

std::optional<mechanics::rigid::BodyEquations> SolveTab::Equations(
    const std::vector<mechanics::rigid::ChosenBody>& bodies) {
    auto built = mechanics::rigid::BuildEquations(m_problem.forces, bodies, m_form.txtSuprEqn.Text());
    std::optional<text::Refusal> refusal;
    if (const auto* refused = std::get_if<text::Refusal>(&built))
        refusal = *refused;
    else
        refusal =
            mechanics::rigid::CheckAngles(std::get<mechanics::rigid::BodyEquations>(built), bodies.size());
    if (!refusal)
        return std::get<mechanics::rigid::BodyEquations>(std::move(built));
    m_form.boxes.Tell(refusal->text);
    return {};
}

void SolveTab::Write(std::span<const mechanics::rigid::ChosenBody> bodies,
                     const mechanics::rigid::BodyEquations& equations,
                     const mechanics::rigid::BodyResults& results) {
    for (const auto& portion :
         mechanics::rigid::EquilibriumReport(bodies, equations, results, m_board.Decimals()))
        frame::WriteLines(m_form, m_form.rtbSolve, portion);
}

void SolveTab::ShowEquations() {
    if (m_problem.forces.empty())
        return;
    if (const auto bodies = ChosenBodies())
        if (const auto equations = Equations(*bodies))
            Write(*bodies, *equations, {});
}

void SolveTab::SolveDCL() {
    if (m_problem.forces.empty())
        return;
    m_problem.backup = m_problem.forces;
    const auto bodies = ChosenBodies();
    if (!bodies)
        return;
    const auto equations = Equations(*bodies);
    if (!equations)
        return;
    const auto results = Results(mechanics::rigid::SolveEquations(*equations, bodies->size()));
    if (!results)
        return;
    mechanics::rigid::BodyForces solved = m_problem.forces;
    mechanics::rigid::UpdateBodyForces(solved, *results, m_board.Decimals());
    Write(*bodies, *equations, *results);
    m_problem.forces = std::move(solved);
    m_board.Redraw();
}

/// The only results, or those of two that the user chooses; nothing after a refusal, which is shown.
std::optional<mechanics::rigid::BodyResults> SolveTab::Results(const mechanics::rigid::BodyOutcome& outcome) {
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome)) {
        m_form.boxes.Tell(refusal->text);
        return {};
    }
    if (const auto* only = std::get_if<mechanics::rigid::BodyResults>(&outcome))
        return *only;
    const auto& choice = std::get<mechanics::rigid::BodyChoice>(outcome);
    const auto answer =
        m_form.boxes.ShowMessage(mechanics::rigid::QuestionBetween(choice, m_board.Decimals()),
                                 window::kProgramTitle, window::Buttons::YesNo);
    return choice[answer == window::Answer::Yes ? 0 : 1];
}

/// The forces as they were before the last solution.
void SolveTab::Restore() {
    if (m_problem.backup.empty())
        return;
    m_problem.forces = m_problem.backup;
    mechanics::rigid::RefreshPlaces(m_problem.forces, m_problem.points);
    m_board.ShowForces();
    m_board.Redraw();
}

/// What is known by now goes into the table; the rest stays as it was typed.
void SolveTab::Update() {
    const auto show = [this](int row, ForceGridCol col, const text::Value& value) {
        if (text::IsNum(value))
            m_form.gd1.SetCell(row, col, text::RoundedText(value.Number(), m_board.Decimals()));
    };
    int row = 0;
    for (const mechanics::rigid::BodyForce& force : m_problem.forces) {
        ++row;
        show(row, kForceX, force.force[mechanics::forces::XComponent]);
        show(row, kForceY, force.force[mechanics::forces::YComponent]);
        show(row, kForceCouple, force.couple);
    }
    m_board.Redraw();
}

}  // namespace tavrelo::tools::rigid
