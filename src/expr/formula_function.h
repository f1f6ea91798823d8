#pragma once

#include <span>

#include "expr/expression.h"

namespace tavrelo::expr {

/// A formula as a function of its first variable, for the routines of numeric: value by value, or by columns
/// where they know their samples. The other variables keep what they hold. The formula must outlive it.
class FormulaFunction {
  public:
    explicit FormulaFunction(CExpression& formula) : m_formula(&formula) {}

    double operator()(double x) const { return m_formula->EvaluateNumber(std::span(&x, 1)); }
    void Column(std::span<const double> places, std::span<double> values) const {
        m_formula->EvaluateColumn(places, values);
    }

  private:
    CExpression* m_formula;
};

}  // namespace tavrelo::expr
