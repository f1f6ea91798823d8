#include "app/tools.h"

#include "calc/argument_prompt.h"
#include "calc/catalogue.h"
#include "kinematics/kinem_panel.h"
#include "motion/motion_help.h"
#include "motion/motion_panels.h"
#include "shell/guard.h"

namespace tavrelo::app {
namespace {

using shell::Guard;
using shell::kCommandFailed;
using shell::Tool;

constexpr int kPointColumnWidth = 960;  // of the motion table, twips
constexpr int kTableIconWidth = 30;     // of the configurations of the motion table, pixels
constexpr int kTableIconHeight = 26;

constexpr std::string_view kStatPartFile = "\\StatPart.txt";
constexpr std::string_view kEstcrFile = "\\HelpEstcr.txt";
constexpr std::string_view kEstcrTags[] = {"CONFIG", "SYSTS", "DCL", "SOLVE"};

}  // namespace

Program::Tools::Tools(shell::Form1& window)
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
      rigid_body(window) {
    WireMenu();
    WireHelp();
    WireTools();
    Load();
}

void Program::Tools::Load() {
    grid.ArrangeGd();
    form.picClock.Canvas().BackColor = shell::Rgb(245, 245, 245);
    clock.Reset();
    help.LoadCalcHelp();
    option_strip.FillTeclas();
    motion::ArrangeGd2(form, kPointColumnWidth, motion::kMotionHelpTool);
    motion::DrawTableStrip(form);
    for (const auto& [index, button] : form.cmdTable.Items())
        button->SetPicture(
            {"table_buttons", {index * kTableIconWidth, 0, kTableIconWidth, kTableIconHeight}});
    tool_switch.Load();
}

void Program::Tools::WireMenu() {
    menu.OnRoutine = [this](int routine) { calc::ShowArgs(form, routine); };
    menu.OnHelp = [this](int index) { help.ShowArgHelp(index); };
    menu.RoutineTitle = [](int number) {
        const calc::Routine* routine = calc::FindRoutine(number);
        return routine ? std::string(routine->title) : std::string();
    };
    menu.OnWay = [this](int way) { kinematics::ShowWay(form, way); };
}

void Program::Tools::WireHelp() {
    tool_switch.OnFillTopics = [this](int help_tool) { help.FillHelpCbo(help_tool); };
    tool_switch.OnGeneralHelp = [this] { help.ShowGeneralPage(); };
    particle.OnExample = [this](int index) {
        help.ShowShortTopic(kStatPartFile, std::to_string(index + 1) + "EXAMPLE");
    };
    form.imgProcs.OnMouseDown = [this](const shell::MouseStroke& stroke) {
        Guard(form.boxes, kCommandFailed, [&] { motion::ChooseProcedureRow(form, stroke.y); });
    };
    for (const auto& [index, button] : form.cmdHelpTable.Items())
        button->OnClick = [this, index = index] {
            Guard(form.boxes, kCommandFailed, [&] {
                const auto topic = motion::HelpOfButton(index, form.publics.HelpTool,
                                                        motion::ProcedureRow(form), form.cboProcs.Index());
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
        if (character != shell::kEnterCharacter)
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
                                 motion::AdaptCtrls(form, help_tool);
                                 motion::ArrangeGd2(form, kPointColumnWidth, help_tool);
                                 motion::DrawTableStrip(form);
                                 motion::DrawProcedureRows(form, help_tool);
                                 motion::FillMruaCbo(form, help_tool);
                                 form.SetFocus(form.cmdTable[0]);
                             }});
    tool_switch.SetHooks(Tool::Kinematics,
                         {.on_entry = [this] { form.SetFocus(form.txtKinem[0]); }, .uses_pic1 = true});
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
