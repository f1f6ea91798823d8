#include "expr/expression.h"

#include <algorithm>
#include <utility>

#include "expr/roots.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::expr {

void CExpression::SetExpression(std::string new_value) {
    m_expression = std::move(new_value);
    m_roots.clear();
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
    }
    return variable;
}

double CExpression::Root(int index) const {
    return index >= 1 && index <= RootsCount() ? m_roots[static_cast<std::size_t>(index - 1)] : 0.0;
}

template <typename Argument>
void CExpression::AssignVariables(std::span<const Argument> vars) {
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

double CExpression::EvaluateNumber(std::span<const double> vars) {
    if (!IsEvaluable()) {
        return 0.0;
    }
    AssignVariables(vars);
    return NumberOf(RunProgram());
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
        variable->Value = x;
        return NumberOf(RunProgram());
    };
    m_roots = ScanRoots(value_at, {low_limit, high_limit, interval, tolerance});
    variable->Value = saved;
}

}  // namespace tavrelo::expr
