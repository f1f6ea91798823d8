#pragma once

#include "app/program.h"
#include "calc/argument_grid.h"
#include "calc/calculator.h"
#include "entry/expression_box.h"
#include "entry/option_strip.h"
#include "entry/shared_expression.h"
#include "shell/help_panel.h"
#include "shell/menu_bar.h"
#include "shell/preferences.h"
#include "shell/tool_switch.h"
#include "statics/particle_tool.h"
#include "statics/rigid_tool.h"
#include "vectors/direction_clock.h"

namespace tavrelo::app {

/// Every part of the program over one window, wired to each other and started.
struct Program::Tools {
    explicit Tools(shell::Form1& window);

    shell::Form1& form;
    shell::MenuBar menu;
    shell::ToolSwitch tool_switch;
    shell::HelpPanel help;
    shell::Preferences preferences;
    entry::SharedExpression expression;
    entry::ExpressionBox expression_box;
    entry::OptionStrip option_strip;
    calc::ArgumentGrid grid;
    calc::Calculator calculator;
    vectors::DirectionClock clock;
    statics::Parts particle;
    statics::RigidBody rigid_body;

  private:
    void Load();
    void WireMenu();
    void WireHelp();
    void WireTools();
    void EnterVector();
};

}  // namespace tavrelo::app
