#pragma once

#include "frame/tool_switch.h"
#include "tools/rigid/rigid_board.h"
#include "tools/rigid/rigid_config_tab.h"
#include "tools/rigid/rigid_dcl_tab.h"
#include "tools/rigid/rigid_solve_tab.h"
#include "window/form1.h"

namespace tavrelo::tools::rigid {

/// The tool "Estática del cuerpo rígido": its three pages over one problem, which outlasts a change of tool.
class RigidBody {
  public:
    explicit RigidBody(window::Form1& form);

    frame::ToolHooks Hooks();
    const mechanics::rigid::RigidProblem& Problem() const { return m_board.Problem(); }

  private:
    void ShowPage(int page);
    void ShowConfiguration();
    void ShowDiagrams();
    void ShowEquations();
    void NewEstcrProblem();

    window::Form1& m_form;
    RigidBoard m_board;
    ConfigTab m_config;
    DclTab m_diagrams;
    SolveTab m_equations;
};

}  // namespace tavrelo::tools::rigid
