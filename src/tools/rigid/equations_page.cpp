#include "tools/rigid/equations_page.h"

#include <algorithm>
#include <utility>

#include "frame/writer.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "tools/rigid/equilibrium_report.h"
#include "tools/rigid/force_grid.h"
#include "tools/rigid/rigid_picture.h"
#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyEquations;
using mechanics::rigid::BodyResults;
using mechanics::rigid::ChosenBody;

// Indexes of cmdVMb.
enum Command { kSolve = 0, kRestore = 1, kNewProblem = 2, kUpdate = 3 };

}  // namespace

EquationsPage::EquationsPage(ProblemInView& view) : m_view(view), m_form(view.Form()), m_controls(m_form) {
    for (const auto& [index, option] : m_view.Controls().optShowDCL.Items())
        option->SetForeColor(SystemColor(index + 1));
    Wire();
}

void EquationsPage::Wire() {
    OnClick(m_form, m_view.Controls().optShowDCL, [this](int index) { ShowSystem(index + 1); });
    OnClick(m_form, m_controls.cmdVMb, [this](int index) { RunCommand(index); });
    OnClick(m_form, m_controls.cmdClearLstDCL, [this] { ClearList(); });
    OnClick(m_form, m_controls.cmdShowIncsEqns, [this] { ShowEquations(); });
}

void EquationsPage::RunCommand(int index) {
    switch (index) {
        case kSolve:
            return SolveDCL();
        case kRestore:
            return m_view.Restore();
        case kNewProblem:
            return OnNewProblem();
        case kUpdate:
            return Update();
        default:
            return;
    }
}

void EquationsPage::Clear() {
    m_controls.txtSuprEqn.SetText("");
    m_controls.rtbSolve.SetContent({});
}

/// The system's diagram comes into view beside the others, and its number into the list, chosen.
void EquationsPage::ShowSystem(int system) {
    const std::string number = std::to_string(system);
    if (!Problem().IsDefined(system)) {
        m_view.Controls().optShowDCL[system - 1].Uncheck();
        return Tell(mechanics::rigid::SystemNotDefined(number));
    }
    m_view.Show(system);
    m_view.Redraw();
    window::ListBox& list = m_view.Controls().lstDCL;
    if (std::ranges::find(list.Items(), number) == list.Items().end())
        list.AddItem(number);
    list.SetChosen(static_cast<int>(std::ranges::find(list.Items(), number) - list.Items().begin()), true);
}

void EquationsPage::ClearList() {
    m_view.HideAll();
    m_view.Draw();
}

std::vector<mechanics::rigid::BodyRequest> EquationsPage::Requests() const {
    std::vector<mechanics::rigid::BodyRequest> requests;
    const window::ListBox& list = m_view.Controls().lstDCL;
    for (std::size_t row = 0; row < list.Items().size(); ++row) {
        if (!list.IsChosen(static_cast<int>(row)))
            continue;
        const int body = static_cast<int>(text::ToNumber(list.Items()[row]));
        requests.push_back({body, text::ToUpper(text::Trim(m_controls.txtRefPt[body - 1].Text()))});
    }
    return requests;
}

std::optional<std::vector<ChosenBody>> EquationsPage::ChosenBodies() {
    auto chosen = mechanics::rigid::ChooseBodies(Problem(), Requests());
    if (auto* bodies = std::get_if<std::vector<ChosenBody>>(&chosen))
        return std::move(*bodies);
    const auto& [refusal, body] = std::get<mechanics::rigid::ReferenceRefusal>(chosen);
    if (body == 0)
        Tell(refusal);
    else
        m_view.Refuse(refusal, m_controls.txtRefPt[body - 1]);
    return {};
}

std::optional<EquationsPage::System> EquationsPage::ChosenSystem() {
    auto bodies = ChosenBodies();
    if (!bodies)
        return {};
    auto built = mechanics::rigid::BuildEquations(Problem().forces, *bodies, m_controls.txtSuprEqn.Text());
    if (const auto* refusal = std::get_if<text::Refusal>(&built)) {
        Tell(*refusal);
        return {};
    }
    auto& equations = std::get<BodyEquations>(built);
    if (const auto refusal = mechanics::rigid::CheckAngles(equations, bodies->size())) {
        Tell(*refusal);
        return {};
    }
    return System{*std::move(bodies), std::move(equations)};
}

void EquationsPage::Write(const System& system, const BodyResults& results) {
    frame::WritePortions(m_form, m_controls.rtbSolve,
                         EquilibriumReport(system.bodies, system.equations, results, m_view.Decimals()));
}

void EquationsPage::ShowEquations() {
    if (Problem().forces.empty())
        return;
    if (const auto system = ChosenSystem())
        Write(*system, {});
}

void EquationsPage::SolveDCL() {
    if (Problem().forces.empty())
        return;
    m_view.Backup();
    const auto system = ChosenSystem();
    if (!system)
        return;
    const auto results = Results(mechanics::rigid::SolveEquations(system->equations, system->bodies.size()));
    if (!results)
        return;
    m_view.TakeSolution(*results);
    Write(*system, *results);
    m_view.Redraw();
}

/// The only results, or those of two that the user chooses; nothing after a refusal, which is shown.
std::optional<BodyResults> EquationsPage::Results(const mechanics::rigid::BodyOutcome& outcome) {
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome)) {
        Tell(*refusal);
        return {};
    }
    if (const auto* only = std::get_if<BodyResults>(&outcome))
        return *only;
    const auto& choice = std::get<mechanics::rigid::BodyChoice>(outcome);
    return choice[window::AskWhichSolution(m_form.boxes, QuestionBetween(choice, m_view.Decimals()))];
}

/// What is known by now goes into the table.
void EquationsPage::Update() {
    ShowKnownValues(m_view.Controls().gd1, Problem().forces, m_view.Decimals());
    m_view.Redraw();
}

}  // namespace tavrelo::tools::rigid
