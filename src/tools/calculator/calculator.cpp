#include "tools/calculator/calculator.h"

#include "expr/brackets.h"
#include "text/utf8.h"
#include "window/guard.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr std::string_view kRoutineFailed = "Falló la rutina. Revisa los argumentos.";
constexpr std::string_view kDataWrong = "Error en los datos.";

/// Nothing to compute from: neither a number nor a refusal of the parser.
[[noreturn]] void FailWithoutFormula() {
    throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "no formula");
}

}  // namespace

Calculator::Calculator(window::Form1& form, frame::SharedExpression& expression, ArgumentGrid& grid)
    : m_form(form), m_expression(expression), m_grid(grid) {
    m_form.cmdCalculate.OnClick = [this] { Calculate(); };
    m_grid.OnCalculate = [this] { Calculate(); };
}

void Calculator::Calculate() {
    window::Guard(m_form.boxes, kRoutineFailed, [this] {
        m_grid.EndCopyMode();
        const window::CMousePtr busy(m_form);
        if (const RoutineRow* row = FindRoutineRow(m_form.publics.ProcNumber))
            RunRoutine(*row);
    });
}

void Calculator::RunRoutine(const RoutineRow& row) {
    if (const Outcome refusal = Attempt(row))
        m_form.boxes.Tell(refusal->text);
}

Outcome Calculator::Attempt(const RoutineRow& row) {
    auto cells = GetCells(m_form.gd, row.cells, m_expression);
    if (auto* refusal = std::get_if<text::Refusal>(&cells))
        return std::move(*refusal);
    const auto& arguments = std::get<Arguments>(cells);
    if (Outcome refusal = CheckArgs(row.number, arguments))
        return refusal;
    Task task{m_form, m_expression, m_engine, SolveParticle, arguments, {}, {}, m_form.publics.Decimals};
    if (Outcome refusal = TakeFormula(row, task))
        return refusal;
    return row.run(task);
}

/// Brackets first, then what the parser says: of the formula alone, for a tail could complete a broken one.
Outcome Calculator::TakeFormula(const RoutineRow& row, Task& task) const {
    if (row.formula == FormulaUse::None)
        return std::nullopt;
    task.typed_formula = text::Trim(m_form.rtbExpr.Text());
    const auto balanced = expr::CheckParentheses(task.typed_formula);
    if (!balanced)
        return text::Refusal{std::string(expr::kParenthesesDisagree)};
    task.formula = *balanced;
    if (row.formula == FormulaUse::Pair)
        return std::nullopt;
    const bool is_table = row.formula == FormulaUse::Table;
    const text::Refusal data_wrong{std::string(kDataWrong)};
    if (task.formula.empty()) {
        if (is_table)
            return data_wrong;
        FailWithoutFormula();
    }
    Outcome refusal = task.Parse(task.formula, task.typed_formula);
    if (refusal && is_table)
        return data_wrong;
    if (!refusal && !row.formula_tail.empty())
        refusal = task.Parse(task.formula + std::string(row.formula_tail), task.typed_formula);
    return refusal;
}

}  // namespace tavrelo::tools::calculator
