#include "app/tools.h"

#include "tools/calculator/argument_prompt.h"
#include "tools/calculator/catalogue.h"
#include "tools/motion/motion_help.h"
#include "tools/motion/motion_panels.h"
#include "window/guard.h"

namespace tavrelo::app {
namespace {

using text::kCommandFailed;
using window::Guard;
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
      menu(window),
      tool_switch(window, menu),
      help(window),
      preferences(window),
      expression(window.publics.AngleFactor),
      expression_box(window, expression),
      option_strip(window),
      grid(window),
      calculator(window, expression, grid),
      clock(window),
      particle(window, clock),
      rigid_body(window),
      kinematics(window) {
    WireMenu();
    WireHelp();
    WireTools();
    Load();
}

void Program::Tools::Load() {
    grid.ArrangeGd();
    form.picClock.Canvas().BackColor = text::Rgb(245, 245, 245);
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
    menu.OnRoutine = [this](int routine) { tools::calculator::ShowArgs(form, routine); };
    menu.OnHelp = [this](int index) { help.ShowArgHelp(index); };
    menu.RoutineTitle = [](int number) {
        const tools::calculator::Routine* routine = tools::calculator::FindRoutine(number);
        return routine ? std::string(routine->title) : std::string();
    };
    menu.OnWay = [this](int way) { kinematics.ShowWay(way); };
}

void Program::Tools::WireHelp() {
    tool_switch.OnFillTopics = [this](int help_tool) { help.FillHelpCbo(help_tool); };
    tool_switch.OnGeneralHelp = [this] { help.ShowGeneralPage(); };
    particle.OnExample = [this](int index) {
        help.ShowShortTopic(kStatPartFile, std::to_string(index + 1) + "EXAMPLE");
    };
    form.imgProcs.OnMouseDown = [this](const window::MouseStroke& stroke) {
        Guard(form.boxes, kCommandFailed, [&] { tools::motion::ChooseProcedureRow(form, stroke.y); });
    };
    for (const auto& [index, button] : form.cmdHelpTable.Items())
        button->OnClick = [this, index = index] {
            Guard(form.boxes, kCommandFailed, [&] {
                const auto topic = tools::motion::HelpOfButton(
                    index, form.publics.HelpTool, tools::motion::ProcedureRow(form), form.cboProcs.Index());
                if (topic)
                    help.ShowShortTopic(topic->file, topic->tag);
            });
        };
    for (const auto& [index, button] : form.cmdHelpEstcr.Items())
        button->OnClick = [this, index = index] {
            Guard(form.boxes, kCommandFailed, [&] { help.ShowShortTopic(kEstcrFile, kEstcrTags[index]); });
        };
}

void Program::Tools::WireTools() {
    form.txtVector.OnKeyPress = [this](char32_t character) {
        if (character != window::kEnterCharacter)
            return false;
        Guard(form.boxes, kCommandFailed, [this] { EnterVector(); });
        return true;
    };
    calculator.SolveParticle = [this](std::span<const std::string> texts) {
        if (particle.LoadForces(texts))
            particle.SolveAndReport();
    };
    tool_switch.SetHooks(Tool::Calculator, {.on_entry = [this] {
                             form.lblVorF.SetCaption("Vector:");
                             form.fraDirec.SetEnabled(true);
                             clock.Draw();
                             form.SetFocus(form.gd);
                         }});
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

/// Enter in the vector box: a force in the particle tool, an argument of the table in the calculator.
void Program::Tools::EnterVector() {
    if (form.publics.CurrentTool == Tool::Particle) {
        particle.EnterForce();
    } else if (!form.txtVector.Text().empty()) {
        grid.PutInCurrentCell(form.txtVector.Text());
        form.txtVector.SetText("");
    }
}

}  // namespace tavrelo::app
