#pragma once

#include <string_view>
#include <vector>

#include "frame/menu_bar.h"
#include "tools/calculator/arguments.h"
#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// Whether a routine reads the formula box, and what it says of a wrong formula.
enum class FormulaUse {
    None,
    Table,     // "Error en los datos."
    Function,  // the formula and what the parser says
    Pair,      // two formulas parted by "&", which the routine parses itself
};

/// A place among the icons of the menu.
struct MenuPlace {
    int group = 0;  // from 1; 0 is no place
    int column = 0;
};
inline constexpr int kMostMenuPlaces = 2;

/// All that the calculator knows of a routine: where its icon stands, what it says of itself, how it takes
/// its data, and what it does.
struct Routine {
    int number = 0;
    MenuPlace icons[kMostMenuPlaces] = {};
    int help_index = 0;
    frame::RoutineNeed need = frame::RoutineNeed::Nothing;
    std::string_view title = {};   // picture markup
    std::string_view prompt = {};  // the arguments that it expects, picture markup
    CellReading cells = CellReading::Formulas;
    FormulaUse formula = FormulaUse::None;
    std::string_view formula_tail = {};  // makes all its variables exist, in their order
    ArgumentCheck check = {};
    Outcome (*run)(RoutineRun&) = nullptr;
};

/// Null when there is no routine of that number.
const Routine* FindRoutine(int number);

/// The icons of the menu, from the places that the routines name.
std::vector<frame::RoutineGroup> RoutineMenu();

}  // namespace tavrelo::tools::calculator
