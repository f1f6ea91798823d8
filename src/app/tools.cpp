#include "app/tools.h"

#include "tools/calculator/routine_table.h"

namespace tavrelo::app {
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
      particle(window, clock, help),
      rigid_body(window, help),
      points(window, help),
      motion(window, points, tool_switch),
      projectile(window, points, tool_switch),
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
}

void Program::Tools::WireTools() {
    calculator.SolveParticle = [this](std::span<const std::string> texts) {
        if (particle.LoadForces(texts))
            particle.SolveAndReport();
    };
    using enum window::Tool;
    tool_switch.SetHooks(Calculator, calculator.Hooks());
    tool_switch.SetHooks(Particle, particle.Hooks());
    tool_switch.SetHooks(RigidBody, rigid_body.Hooks());
    tool_switch.SetHooks(Motion, motion.Hooks());
    tool_switch.SetHooks(Projectile, projectile.Hooks());
    tool_switch.SetHooks(Kinematics, kinematics.Hooks());
}

}  // namespace tavrelo::app
