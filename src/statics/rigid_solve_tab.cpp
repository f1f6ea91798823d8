#include "statics/rigid_solve_tab.h"

#include <algorithm>

#include "numeric/number_text.h"
#include "numeric/utf8.h"
#include "shell/writer.h"
#include "statics/rigid_grid.h"
#include "statics/rigid_report.h"

namespace tavrelo::statics {
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
        return m_form.boxes.Tell(SystemNotDefined(number).text);
    }
    m_problem.Show(system, true);
    m_board.Redraw();
    shell::ListBox& list = m_form.lstDCL;
    if (std::ranges::find(list.Items(), number) == list.Items().end())
        list.AddItem(number);
    list.SetChosen(static_cast<int>(std::ranges::find(list.Items(), number) - list.Items().begin()), true);
}

void SolveTab::ClearList() {
    m_board.HideAll();
    m_board.Draw();
}

std::optional<std::vector<ChosenBody>> SolveTab::ChosenBodies() {
    std::vector<ChosenBody> bodies;
    const std::vector<std::string>& items = m_form.lstDCL.Items();
    for (std::size_t row = 0; row < items.size(); ++row) {
        if (!m_form.lstDCL.IsChosen(static_cast<int>(row)))
            continue;
        const int number = static_cast<int>(numeric::ToNumber(items[row]));
        shell::TextBox& box = m_form.txtRefPt[number - 1];
        const std::string name = numeric::ToUpper(numeric::Trim(box.Text()));
        const PointRecord* point = FindPoint(m_problem.points, name);
        if (!point) {
            m_board.Refuse({"El punto de referencia " + name + " del sistema " + items[row] + " no existe."},
                           box);
            return {};
        }
        const bool is_particle = LettersOf(m_problem.LettersOfSystem(number)).size() == 1;
        bodies.push_back({number, is_particle, point->x, point->y});
    }
    if (!bodies.empty())
        return bodies;
    m_form.boxes.Tell("No hay sistemas seleccionados en la lista.");
    return {};
}

std::optional<BodyEquations> SolveTab::Equations(const std::vector<ChosenBody>& bodies) {
    auto built = BuildEquations(m_problem.forces, bodies, m_form.txtSuprEqn.Text());
    std::optional<Refusal> refusal;
    if (const auto* refused = std::get_if<Refusal>(&built))
        refusal = *refused;
    else
        refusal = CheckAngles(std::get<BodyEquations>(built), bodies.size());
    if (!refusal)
        return std::get<BodyEquations>(std::move(built));
    m_form.boxes.Tell(refusal->text);
    return {};
}

void SolveTab::Write(std::span<const ChosenBody> bodies, const BodyEquations& equations,
                     const BodyResults& results) {
    for (const auto& portion : EquilibriumReport(bodies, equations, results, m_board.Decimals()))
        shell::WriteLines(m_form, m_form.rtbSolve, portion);
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
    const auto results = Results(SolveEquations(*equations, bodies->size()));
    if (!results)
        return;
    BodyForces solved = m_problem.forces;
    UpdateBodyForces(solved, *results, m_board.Decimals());
    Write(*bodies, *equations, *results);
    m_problem.forces = std::move(solved);
    m_board.Redraw();
}

/// The only results, or those of two that the user chooses; nothing after a refusal, which is shown.
std::optional<BodyResults> SolveTab::Results(const BodyOutcome& outcome) {
    if (const auto* refusal = std::get_if<Refusal>(&outcome)) {
        m_form.boxes.Tell(refusal->text);
        return {};
    }
    if (const auto* only = std::get_if<BodyResults>(&outcome))
        return *only;
    const auto& choice = std::get<BodyChoice>(outcome);
    const auto answer = m_form.boxes.ShowMessage(QuestionBetween(choice, m_board.Decimals()),
                                                 shell::kProgramTitle, shell::Buttons::YesNo);
    return choice[answer == shell::Answer::Yes ? 0 : 1];
}

/// The forces as they were before the last solution.
void SolveTab::Restore() {
    if (m_problem.backup.empty())
        return;
    m_problem.forces = m_problem.backup;
    RefreshPlaces(m_problem.forces, m_problem.points);
    m_board.ShowForces();
    m_board.Redraw();
}

/// What is known by now goes into the table; the rest stays as it was typed.
void SolveTab::Update() {
    const auto show = [this](int row, ForceGridCol col, const numeric::Value& value) {
        if (numeric::IsNum(value))
            m_form.gd1.SetCell(row, col, numeric::RoundedText(value.Number(), m_board.Decimals()));
    };
    int row = 0;
    for (const BodyForce& force : m_problem.forces) {
        ++row;
        show(row, kForceX, force.force[XComponent]);
        show(row, kForceY, force.force[YComponent]);
        show(row, kForceCouple, force.couple);
    }
    m_board.Redraw();
}

}  // namespace tavrelo::statics
