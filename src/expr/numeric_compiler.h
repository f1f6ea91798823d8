#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "expr/numeric_steps.h"
#include "expr/program.h"
#include "expr/variables.h"

namespace tavrelo::expr {

struct CompiledSteps {
    std::vector<NumericStep> steps;
    std::size_t variables_needed = 0;
    std::size_t laid_aside = 0;  // entries in use
};

/// The steps of a program, for variables that hold numbers; nothing where it has no numeric form (see
/// NumericProgram). The order of the steps is not that of the program: what fails first is not told by them.
std::optional<CompiledSteps> CompileNumeric(const Program& program, const VariableList& variables);

}  // namespace tavrelo::expr
