#pragma once

#include "frame/direction_clock.h"
#include "frame/tool_switch.h"
#include "tools/calculator/argument_grid.h"
#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// The tool "Calculadora científica": the table of arguments and the button that runs the routine which the
/// menu selected.
class CalculatorTool {
  public:
    CalculatorTool(window::Form1& form, frame::SharedExpression& expression, frame::DirectionClock& clock);

    frame::ToolHooks Hooks();
    /// Paints a routine's title and prompt; 0 clears both.
    void ShowArgs(int routine);
    /// The width of the table is divided into so many columns.
    int GridColsShown() const { return m_grid.GridColsShown(); }

    /// Does the work of the routine on the equilibrium of a particle.
    ParticleSolver SolveParticle;

  private:
    void EnterVector();
    void Calculate();

    window::Form1& m_form;
    CalculatorControls m_controls{m_form};
    frame::SharedExpression& m_expression;
    frame::DirectionClock& m_clock;
    ArgumentGrid m_grid{m_form, m_controls};
    drawing::DrawEng m_engine;
};

}  // namespace tavrelo::tools::calculator
