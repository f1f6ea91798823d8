#pragma once

#include "shell/form1.h"
#include "shell/tool_switch.h"
#include "statics/rigid_board.h"
#include "statics/rigid_config_tab.h"
#include "statics/rigid_dcl_tab.h"
#include "statics/rigid_solve_tab.h"

namespace tavrelo::statics {

/// The tool "Estática del cuerpo rígido": its three pages over one problem, which outlasts a change of tool.
class RigidBody {
  public:
    explicit RigidBody(shell::Form1& form);

    shell::ToolHooks Hooks();
    const RigidProblem& Problem() const { return m_board.Problem(); }

  private:
    void ShowPage(int page);
    void ShowConfiguration();
    void ShowDiagrams();
    void ShowEquations();
    void NewEstcrProblem();

    shell::Form1& m_form;
    RigidBoard m_board;
    ConfigTab m_config;
    DclTab m_diagrams;
    SolveTab m_equations;
};

}  // namespace tavrelo::statics
