#include "tools/rigid/rigid_tool.h"

#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::tools::rigid {
namespace {

// Pages of tabStat.
enum Page { kConfiguration = 0, kDiagrams = 1, kEquations = 2 };

constexpr std::string_view kHelpFile = "\\HelpEstcr.txt";
constexpr std::string_view kHelpTags[] = {"CONFIG", "SYSTS", "DCL", "SOLVE"};  // by the index of cmdHelpEstcr

}  // namespace

RigidTool::RigidTool(window::Form1& form, frame::HelpPanel& help)
    : m_form(form), m_view(form), m_configuration(m_view), m_diagrams(m_view), m_equations(m_view) {
    window::TabStrip& pages = m_view.Controls().tabStat;
    On(form, pages.OnClick, [this, &pages](int) {
        if (pages.Current() == kDiagrams)
            m_diagrams.Enter();
    });
    OnClick(form, m_view.Controls().cmdHelpEstcr,
            [&help](int index) { help.ShowShortTopic(kHelpFile, kHelpTags[index]); });
    m_configuration.OnDiagramsWanted = [this] { ShowDiagrams(); };
    m_configuration.OnErased = [this] { m_diagrams.RestoreDCLCtrls(); };
    m_diagrams.OnConfigurationWanted = [this] { ShowConfiguration(); };
    m_diagrams.OnEquationsWanted = [this] { ShowEquations(); };
    m_equations.OnNewProblem = [this] { NewEstcrProblem(); };
}

frame::ToolHooks RigidTool::Hooks() {
    return {.on_entry =
                [this] {
                    m_view.Draw();
                    m_configuration.Focus();
                },
            .uses_pic1 = true};
}

void RigidTool::ShowConfiguration() {
    m_view.Controls().tabStat.SetCurrent(kConfiguration);
    m_configuration.FocusAndSelect();
}

void RigidTool::ShowDiagrams() {
    m_view.Controls().tabStat.SetCurrent(kDiagrams);
    m_diagrams.Enter();
    m_diagrams.FocusAndSelect();
}

void RigidTool::ShowEquations() {
    m_view.Controls().tabStat.SetCurrent(kEquations);
    m_form.SetFocus(m_view.Controls().optShowDCL[0]);
}

void RigidTool::NewEstcrProblem() {
    if (!window::Confirm(m_form.boxes, "Confirmar borrado de todo."))
        return;
    m_view.HideAll();
    m_view.Take(mechanics::rigid::RigidProblem{});
    m_configuration.Clear();
    m_diagrams.RestoreDCLCtrls();
    m_diagrams.Enter();
    m_equations.Clear();
    m_view.Draw();
    ShowConfiguration();
}

}  // namespace tavrelo::tools::rigid
