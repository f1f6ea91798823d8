#pragma once

#include "calc/argument_grid.h"
#include "calc/routine_table.h"

namespace tavrelo::calc {

/// The button `cmdCalculate`: takes the selected arguments and the formula, tests them and runs the routine
/// that the menu selected. A refusal is a box, and the former report and picture stay.
class Calculator {
  public:
    Calculator(shell::Form1& form, entry::SharedExpression& expression, ArgumentGrid& grid);

    /// Runs the selected routine; nothing happens when none is.
    void Calculate();

    /// Does the work of routine 38.
    ParticleSolver SolveParticle;

  private:
    void RunRoutine(const RoutineRow& row);
    Outcome Attempt(const RoutineRow& row);
    Outcome TakeFormula(const RoutineRow& row, Task& task) const;

    shell::Form1& m_form;
    entry::SharedExpression& m_expression;
    ArgumentGrid& m_grid;
    vectors::DrawEng m_engine;
};

}  // namespace tavrelo::calc
