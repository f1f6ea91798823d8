#include "tools/calculator/calculation.h"

#include "expr/brackets.h"
#include "text/utf8.h"

namespace tavrelo::tools::calculator {
namespace {

/// Nothing to compute from: neither a number nor a refusal of the parser.
[[noreturn]] void FailWithoutFormula() {
    throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "no formula");
}

/// What the parser says of the formula alone, for a tail could complete a broken one.
Outcome ParseFormula(const Routine& routine, RoutineRun& run) {
    const bool is_table = routine.formula == FormulaUse::Table;
    const text::Refusal data_wrong{"Error en los datos."};
    if (run.formula.empty()) {
        if (is_table)
            return data_wrong;
        FailWithoutFormula();
    }
    Outcome refusal = run.Parse(run.formula, run.typed_formula);
    if (refusal && is_table)
        return data_wrong;
    if (!refusal && !routine.formula_tail.empty())
        refusal = run.Parse(run.formula + std::string(routine.formula_tail), run.typed_formula);
    return refusal;
}

/// Brackets first, then the parser.
Outcome TakeFormula(const Routine& routine, RoutineRun& run) {
    if (routine.formula == FormulaUse::None)
        return std::nullopt;
    run.typed_formula = text::Trim(run.controls.rtbExpr.Text());
    const auto balanced = expr::CheckParentheses(run.typed_formula);
    if (!balanced)
        return text::Refusal{std::string(expr::kParenthesesDisagree)};
    run.formula = *balanced;
    return routine.formula == FormulaUse::Pair ? std::nullopt : ParseFormula(routine, run);
}

}  // namespace

Outcome Perform(const Routine& routine, RoutineRun& run) {
    auto cells = GetCells(run.controls.gd, routine.cells, run.expression);
    if (auto* refusal = std::get_if<text::Refusal>(&cells))
        return std::move(*refusal);
    run.arguments = std::get<Arguments>(std::move(cells));
    if (Outcome refusal = CheckArgs(routine.check, run.arguments))
        return refusal;
    if (Outcome refusal = TakeFormula(routine, run))
        return refusal;
    return routine.run(run);
}

}  // namespace tavrelo::tools::calculator
