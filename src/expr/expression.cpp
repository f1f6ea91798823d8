#include "expr/expression.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "expr/roots.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::expr {

void CExpression::SetExpression(std::string new_value) {
    m_expression = std::move(new_value);
    m_roots.clear();
    ForgetNumeric();
    m_error = {};
    m_error = ParseExpression(m_expression, m_variables, AutoCreateVariables, m_program);
}

VariablePtr CExpression::Variable(const text::Value& var_name, bool create_if_needed) {
    if (text::IsNum(var_name)) {
        try {
            return m_variables.At(numeric::RoundToInteger(var_name.Number()));
        } catch (const numeric::RuntimeFailure&) {
            return nullptr;
        }
    }
    const std::string name = var_name.Text();
    VariablePtr variable = m_variables.Find(name);
    if (!variable && create_if_needed) {
        variable = m_variables.Create(name);
        ForgetNumeric();
    }
    return variable;
}

int CExpression::AddVariable(VariablePtr new_var) {
    ForgetNumeric();
    return m_variables.Add(std::move(new_var));
}

double CExpression::Root(int index) const {
    return index >= 1 && index <= RootsCount() ? m_roots[static_cast<std::size_t>(index - 1)] : 0.0;
}

void CExpression::AssignVariables(std::span<const text::Value> vars) {
    const std::size_t count = std::min(vars.size(), static_cast<std::size_t>(VariablesCount()));
    for (std::size_t i = 0; i < count; ++i) {
        m_variables.Item(static_cast<int>(i) + 1).Value = vars[i];
    }
}

text::Value CExpression::Value(std::span<const text::Value> vars) {
    if (!IsEvaluable()) {
        return {};
    }
    AssignVariables(vars);
    try {
        return ValueOf(RunProgram());
    } catch (const numeric::RuntimeFailure&) {
        if (RaiseErrors) {
            throw;
        }
        return std::string();
    }
}

void CExpression::ForgetNumeric() {
    m_numeric.Forget();
    m_numeric_state = NumericState::Unused;
}

void CExpression::PrepareNumeric() {
    if (m_numeric_state != NumericState::Tried) {
        m_numeric_state = NumericState::Tried;
        m_numeric.Compile(m_program, m_variables);
    }
}

double CExpression::EvaluateNumber(std::span<const double> vars) {
    if (m_numeric.IsReady() && !vars.empty() && vars.size() >= m_numeric.VariablesNeeded()) {
        m_variables.Give(vars);
        const double value = m_numeric.Run(vars.data(), *m_angle_factor);
        return std::isfinite(value) ? value : NumberOf(RunProgram());
    }
    if (!IsEvaluable()) {
        return 0.0;
    }
    m_variables.Give(vars);
    return RunNumber();
}

/// The formula as a number, with the present values of the variables.
double CExpression::RunNumber() {
    if (m_numeric_state == NumericState::Unused) {
        m_numeric_state = NumericState::UsedOnce;
        return NumberOf(RunProgram());
    }
    PrepareNumeric();
    std::array<double, NumericProgram::kMostVariables> numbers{};
    if (m_numeric.IsReady() && TakeNumbers(0, numbers)) {
        const double value = m_numeric.Run(numbers.data(), *m_angle_factor);
        if (std::isfinite(value)) {
            return value;
        }
    }
    return NumberOf(RunProgram());
}

/// The numbers that the needed variables hold, from the 0-based position `first` on; false when one holds no
/// number.
bool CExpression::TakeNumbers(std::size_t first, std::span<double> numbers) const {
    for (std::size_t i = first; i < m_numeric.VariablesNeeded(); ++i) {
        const double* number = m_variables.Item(static_cast<int>(i) + 1).Value.IfNumber();
        if (!number) {
            return false;
        }
        numbers[i] = *number;
    }
    return true;
}

void CExpression::EvaluateColumn(std::span<const std::span<const double>> columns, std::span<double> values) {
    if (!IsEvaluable()) {
        std::fill(values.begin(), values.end(), 0.0);
        return;
    }
    if (values.size() > 1) {
        PrepareNumeric();
    }
    std::array<double, NumericProgram::kMostVariables> held{};
    const bool by_blocks = m_numeric.IsReady() && TakeNumbers(columns.size(), held);
    for (std::size_t first = 0; first < values.size(); first += kBlock) {
        const std::size_t last = std::min(first + kBlock, values.size());
        if (!by_blocks || !EvaluateBlock(columns, held, first, values.subspan(first, last - first))) {
            EvaluatePoints(columns, first, values.subspan(first, last - first));
        }
    }
    if (!values.empty()) {
        AssignPoint(columns, values.size() - 1);
    }
}

/// The points from `first` on in one walk of the program; `held` are the numbers of the variables without a
/// column. False where one of them fails.
bool CExpression::EvaluateBlock(Columns columns, std::span<const double> held, std::size_t first,
                                std::span<double> values) {
    std::array<BlockColumn, NumericProgram::kMostVariables> constants;
    std::array<const double*, NumericProgram::kMostVariables> variables;
    for (std::size_t i = 0; i < std::max<std::size_t>(m_numeric.VariablesNeeded(), 1); ++i) {
        if (i < columns.size()) {
            variables[i] = columns[i].data() + first;
        } else {
            constants[i].fill(held[i]);
            variables[i] = constants[i].data();
        }
    }
    return m_numeric.RunBlock(variables.data(), *m_angle_factor, values);
}

/// The points from `first` on one by one.
void CExpression::EvaluatePoints(Columns columns, std::size_t first, std::span<double> values) {
    for (std::size_t k = 0; k < values.size(); ++k) {
        AssignPoint(columns, first + k);
        values[k] = RunNumber();
    }
}

void CExpression::AssignPoint(Columns columns, std::size_t point) {
    const std::size_t count = std::min(columns.size(), static_cast<std::size_t>(VariablesCount()));
    for (std::size_t i = 0; i < count; ++i) {
        m_variables.Item(static_cast<int>(i) + 1).Value.SetNumber(columns[i][point]);
    }
}

text::Value CExpression::Evaluate(std::string expr, std::span<const text::Value> vars) {
    SetExpression(std::move(expr));
    return Value(vars);
}

std::string CExpression::RPNExpression() const {
    return IsEvaluable() ? ProgramText(m_program) : std::string();
}

void CExpression::FindRoots(double low_limit, double high_limit, double interval, std::string_view var_name,
                            double tolerance) {
    if (!IsEvaluable()) {
        return;
    }
    const VariablePtr variable = var_name.empty() ? m_variables.At(1) : m_variables.Find(var_name);
    if (!variable) {
        return;
    }
    const text::Value saved = variable->Value;
    const auto value_at = [&](double x) {
        variable->Value.SetNumber(x);
        return RunNumber();
    };
    m_roots = ScanRoots(value_at, {low_limit, high_limit, interval, tolerance});
    variable->Value = saved;
}

}  // namespace tavrelo::expr
