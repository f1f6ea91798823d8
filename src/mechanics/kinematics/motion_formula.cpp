#include "mechanics/kinematics/motion_formula.h"

#include "mechanics/kinematics/rewriting.h"
#include "numeric/checked.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::kinematics {
namespace {

std::string Rewritten(std::string_view formula, int variables) {
    switch (variables) {
        case 1:
            return Rewrite1(formula);
        case 2:
            return Rewrite2(formula);
        default:
            return Rewrite3(formula);
    }
}

/// Whether the text is a formula by itself; with a term behind it "t*" would be one too.
bool IsFormula(std::string_view formula, int variables, const double& angle_factor) {
    expr::CExpression expression(angle_factor);
    expression.SetExpression(RenameVariables(formula, variables));
    return expression.ErrorCode() == 0;
}

}  // namespace

MotionFormula::MotionFormula(std::string_view formula, int variables, const double& angle_factor)
    : m_expression(angle_factor) {
    if (text::Trim(formula).empty() || !IsFormula(formula, variables, angle_factor))
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "no formula of motion");
    m_expression.SetExpression(Rewritten(formula, variables));
    if (m_expression.ErrorCode() != 0 || m_expression.VariablesCount() != variables)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "formula of motion");
}

}  // namespace tavrelo::mechanics::kinematics
