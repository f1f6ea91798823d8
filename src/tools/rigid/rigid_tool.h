#pragma once

#include "frame/help_panel.h"
#include "frame/tool_switch.h"
#include "tools/rigid/configuration_page.h"
#include "tools/rigid/diagrams_page.h"
#include "tools/rigid/equations_page.h"
#include "tools/rigid/problem_in_view.h"
#include "window/form1.h"

namespace tavrelo::tools::rigid {

/// The tool "Estática del cuerpo rígido": its three pages over one problem, which outlasts a change of tool.
class RigidTool {
  public:
    RigidTool(window::Form1& form, frame::HelpPanel& help);

    frame::ToolHooks Hooks();
    const mechanics::rigid::RigidProblem& Problem() const { return m_view.Problem(); }

  private:
    void ShowConfiguration();
    void ShowDiagrams();
    void ShowEquations();
    void NewEstcrProblem();

    window::Form1& m_form;
    ProblemInView m_view;
    ConfigurationPage m_configuration;
    DiagramsPage m_diagrams;
    EquationsPage m_equations;
};

}  // namespace tavrelo::tools::rigid
