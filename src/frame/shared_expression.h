#pragma once

#include "expr/expression.h"

namespace tavrelo::frame {

/// The one expression of the calculator: X, Y and Z keep their values from one press to the next. After a
/// text that was refused the object is made anew with those values, so that a mistyped name never shifts the
/// arguments of the next one.
class SharedExpression {
  public:
    /// `angle_factor` as for CExpression.
    explicit SharedExpression(const double& angle_factor);

    expr::CExpression& Get() { return m_expression; }
    /// Takes a new object that carries X, Y and Z over.
    void Renew();

  private:
    const double& m_angle_factor;
    expr::CExpression m_expression;
};

}  // namespace tavrelo::frame
