#include "tools/rigid/rigid_tool.h"

#include "tools/rigid/rigid_grid.h"

namespace tavrelo::tools::rigid {
namespace {

// Pages of tabStat.
enum Page { kConfiguration = 0, kDiagrams = 1, kEquations = 2 };

void Focus(window::Form1& form, window::TextBox& box) {
    form.SetFocus(box);
    box.SelectAll();
}

}  // namespace

RigidBody::RigidBody(window::Form1& form)
    : m_form(form), m_board(form), m_config(m_board), m_diagrams(m_board), m_equations(m_board) {
    ArrangeGd1(form);
    form.spnColor.SetRange(1, mechanics::rigid::kSystems);
    form.tabStat.OnClick = [this](int) {
        if (m_form.tabStat.Current() == kDiagrams)
            m_diagrams.Enter();
    };
    m_config.OnDiagramsWanted = [this] { ShowDiagrams(); };
    m_config.OnErased = [this] { m_diagrams.RestoreDCLCtrls(); };
    m_diagrams.OnConfigurationWanted = [this] { ShowConfiguration(); };
    m_diagrams.OnEquationsWanted = [this] { ShowEquations(); };
    m_equations.OnNewProblem = [this] { NewEstcrProblem(); };
}

frame::ToolHooks RigidBody::Hooks() {
    frame::ToolHooks hooks;
    hooks.uses_pic1 = true;
    hooks.on_entry = [this] {
        m_board.Draw();
        m_form.SetFocus(m_form.txtSegm[0]);
    };
    return hooks;
}

void RigidBody::ShowConfiguration() {
    m_form.tabStat.SetCurrent(kConfiguration);
    Focus(m_form, m_form.txtSegm[0]);
}

void RigidBody::ShowDiagrams() {
    m_form.tabStat.SetCurrent(kDiagrams);
    m_diagrams.Enter();
    Focus(m_form, m_form.txtBody[1]);
}

void RigidBody::ShowEquations() {
    m_form.tabStat.SetCurrent(kEquations);
    m_form.SetFocus(m_form.optShowDCL[0]);
}

void RigidBody::NewEstcrProblem() {
    if (m_form.boxes.ShowMessage("Confirmar borrado de todo.", window::kProgramTitle,
                                 window::Buttons::YesNo) != window::Answer::Yes)
        return;
    m_board.DropDiagrams();
    m_board.Problem() = {};
    m_config.Clear();
    m_diagrams.RestoreDCLCtrls();
    m_diagrams.Enter();
    m_form.txtSuprEqn.SetText("");
    m_form.rtbSolve.SetContent({});
    m_board.Draw();
    ShowConfiguration();
}

}  // namespace tavrelo::tools::rigid
