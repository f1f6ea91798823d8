#include "frame/shared_expression.h"

namespace tavrelo::frame {

SharedExpression::SharedExpression(const double& angle_factor)
    : m_angle_factor(angle_factor), m_expression(angle_factor) {}

void SharedExpression::Renew() {
    expr::CExpression fresh(m_angle_factor);
    for (const char* name : {"X", "Y", "Z"})
        if (const expr::VariablePtr variable = m_expression.Variable(name, false))
            fresh.AddVariable(variable);
    m_expression = std::move(fresh);
}

}  // namespace tavrelo::frame
