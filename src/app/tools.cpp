#include "app/tools.h"

#include "tools/calculator/routine_table.h"
#include "tools/motion/motion_help.h"
#include "tools/motion/motion_panels.h"
#include "window/guarded.h"

namespace tavrelo::app {
namespace {

using window::Tool;

constexpr int kPointColumnWidth = 960;  // of the motion table, twips
constexpr int kTableIconWidth = 30;     // of the configurations of the motion table, pixels
constexpr int kTableIconHeight = 26;

constexpr std::string_view kStatPartFile = "\\StatPart.txt";
constexpr std::string_view kEstcrFile = "\\HelpEstcr.txt";
constexpr std::string_view kEstcrTags[] = {"CONFIG", "SYSTS", "DCL", "SOLVE"};

}  // namespace

Program::Tools::Tools(window::Form1& window)
    : form(window),
      menu(window, tools::calculator::RoutineMenu()),
      tool_switch(window, menu),
      help(window),
      preferences(window),
      expression(window.publics.AngleFactor),
      expression_box(window, expression),
      option_strip(window),
      clock(window),
      calculator(window, expression, clock),
      particle(window, clock),
      rigid_body(window),
      kinematics(window) {
    WireMenu();
    WireHelp();
    WireTools();
    Load();
}

void Program::Tools::Load() {
    clock.Reset();
    help.LoadCalcHelp();
    option_strip.FillTeclas();
    tools::motion::ArrangeGd2(form, kPointColumnWidth, tools::motion::kMotionHelpTool);
    tools::motion::DrawTableStrip(form);
    for (const auto& [index, button] : form.cmdTable.Items())
        button->SetPicture(
            {"table_buttons", {index * kTableIconWidth, 0, kTableIconWidth, kTableIconHeight}});
    tool_switch.Load();
}

void Program::Tools::WireMenu() {
    menu.OnRoutine = [this](int routine) { calculator.ShowArgs(routine); };
    menu.OnHelp = [this](int index) { help.ShowArgHelp(index); };
    menu.OnWay = [this](int way) { kinematics.ShowWay(way); };
}

void Program::Tools::WireHelp() {
    tool_switch.OnFillTopics = [this](int help_tool) { help.FillHelpCbo(help_tool); };
    tool_switch.OnGeneralHelp = [this] { help.ShowGeneralPage(); };
    particle.OnExample = [this](int index) {
        help.ShowShortTopic(kStatPartFile, std::to_string(index + 1) + "EXAMPLE");
    };
    window::On(form, form.imgProcs.OnMouseDown, [this](const window::MouseStroke& stroke) {
        tools::motion::ChooseProcedureRow(form, stroke.y);
    });
    window::OnClick(form, form.cmdHelpTable, [this](int index) {
        const auto topic = tools::motion::HelpOfButton(
            index, form.publics.HelpTool, tools::motion::ProcedureRow(form), form.cboProcs.Index());
        if (topic)
            help.ShowShortTopic(topic->file, topic->tag);
    });
    window::OnClick(form, form.cmdHelpEstcr,
                    [this](int index) { help.ShowShortTopic(kEstcrFile, kEstcrTags[index]); });
}

void Program::Tools::WireTools() {
    clock.GiveVectorTo(Tool::Particle, [this] { particle.EnterForce(); });
    calculator.SolveParticle = [this](std::span<const std::string> texts) {
        if (particle.LoadForces(texts))
            particle.SolveAndReport();
    };
    tool_switch.SetHooks(Tool::Calculator, calculator.Hooks());
    tool_switch.SetHooks(Tool::Particle, particle.Hooks());
    tool_switch.SetHooks(Tool::RigidBody, rigid_body.Hooks());
    for (const Tool tool : {Tool::Motion, Tool::Projectile})
        tool_switch.SetHooks(tool, {.on_entry = [this, help_tool = static_cast<int>(tool) + 1] {
                                 tools::motion::AdaptCtrls(form, help_tool);
                                 tools::motion::ArrangeGd2(form, kPointColumnWidth, help_tool);
                                 tools::motion::DrawTableStrip(form);
                                 tools::motion::DrawProcedureRows(form, help_tool);
                                 tools::motion::FillMruaCbo(form, help_tool);
                                 form.SetFocus(form.cmdTable[0]);
                             }});
    tool_switch.SetHooks(Tool::Kinematics, kinematics.Hooks());
}

}  // namespace tavrelo::app
