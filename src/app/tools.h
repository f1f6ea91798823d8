#pragma once

#include "app/program.h"
#include "frame/direction_clock.h"
#include "frame/expression_box.h"
#include "frame/help_panel.h"
#include "frame/menu_bar.h"
#include "frame/option_strip.h"
#include "frame/points_panel.h"
#include "frame/preferences.h"
#include "frame/shared_expression.h"
#include "frame/tool_switch.h"
#include "tools/calculator/calculator_tool.h"
#include "tools/kinematics/kinematics_tool.h"
#include "tools/motion/motion_tool.h"
#include "tools/particle/particle_tool.h"
#include "tools/projectile/projectile_tool.h"
#include "tools/rigid/rigid_tool.h"

namespace tavrelo::app {

/// Every part of the program over one window, wired to each other and started.
struct Program::Tools {
    explicit Tools(window::Form1& window);

    window::Form1& form;
    frame::MenuBar menu;
    frame::ToolSwitch tool_switch;
    frame::HelpPanel help;
    frame::Preferences preferences;
    frame::SharedExpression expression;
    frame::ExpressionBox expression_box;
    frame::OptionStrip option_strip;
    frame::DirectionClock clock;
    tools::calculator::CalculatorTool calculator;
    tools::particle::ParticleTool particle;
    tools::rigid::RigidTool rigid_body;
    frame::PointsPanel points;
    tools::motion::Motion motion;
    tools::projectile::Projectile projectile;
    tools::kinematics::KinematicsTool kinematics;

  private:
    void Load();
    void WireMenu();
    void WireHelp();
    void WireTools();
};

}  // namespace tavrelo::app
