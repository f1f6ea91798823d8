#pragma once

#include <string_view>

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

/// Whether a routine reads the formula box, and what it says of a wrong formula.
enum class FormulaUse {
    None,
    Table,     // "Error en los datos."
    Function,  // the formula and what the parser says
    Pair,      // two formulas parted by "&", which the routine parses itself
};

/// How a routine takes its data, and the routine itself.
struct RoutineRow {
    int number;
    CellReading cells;
    FormulaUse formula;
    Outcome (*run)(Task&);
    std::string_view formula_tail = {};  // makes all its variables exist, in their order
};

/// Null when there is no routine of that number.
const RoutineRow* FindRoutineRow(int number);

}  // namespace tavrelo::tools::calculator
