#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "expr/numeric_steps.h"
#include "expr/program.h"
#include "expr/variables.h"

namespace tavrelo::expr {

/// A program compiled for variables that hold numbers: no kinds, no texts, no allocation, operands fused with
/// what is done to them. It computes the same as the program, bit for bit, as long as nothing fails; where
/// something does, it only tells that, and the program is run instead to fail as it must.
class NumericProgram {
  public:
    /// Forgets the old program. False, with nothing to run, when the program needs texts (a literal that is
    /// no number, or whose form decides a comparison), leaves computed operands behind, overflows the
    /// evaluation pile, fails whatever the variables are, or names a variable that `variables` does not have.
    bool Compile(const Program& program, const VariableList& variables);
    void Forget() { m_steps.clear(); }
    bool IsReady() const { return !m_steps.empty(); }

    /// How many of the variables, in the order of the list, must be given.
    std::size_t VariablesNeeded() const { return m_variables_needed; }

    /// The value; not finite where something fails. At least VariablesNeeded() values, and never none.
    double Run(const double* variables, double angle_factor) const;

    /// The values at up to kBlock points, `variables` being columns of as many numbers; at least
    /// VariablesNeeded() of them, and never none. False, with nothing written, where something fails at
    /// one of the points.
    bool RunBlock(const double* const* variables, double angle_factor, std::span<double> values) const;

    /// Most variables that may be needed: X, Y, Z and what mistyped names have left behind.
    static constexpr std::size_t kMostVariables = 8;

  private:
    std::vector<NumericStep> m_steps;
    std::size_t m_variables_needed = 0;
    std::size_t m_laid_aside = 0;
};

}  // namespace tavrelo::expr
