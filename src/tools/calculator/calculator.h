#pragma once

#include "tools/calculator/argument_grid.h"
#include "tools/calculator/routine_table.h"

namespace tavrelo::tools::calculator {

/// The button `cmdCalculate`: takes the selected arguments and the formula, tests them and runs the routine
/// that the menu selected. A refusal is a box, and the former report and picture stay.
class Calculator {
  public:
    Calculator(window::Form1& form, frame::SharedExpression& expression, ArgumentGrid& grid);

    /// Runs the selected routine; nothing happens when none is.
    void Calculate();

    /// Does the work of routine 38.
    ParticleSolver SolveParticle;

  private:
    void RunRoutine(const RoutineRow& row);
    Outcome Attempt(const RoutineRow& row);
    Outcome TakeFormula(const RoutineRow& row, Task& task) const;

    window::Form1& m_form;
    frame::SharedExpression& m_expression;
    ArgumentGrid& m_grid;
    drawing::DrawEng m_engine;
};

}  // namespace tavrelo::tools::calculator
