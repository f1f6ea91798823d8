#include "expr/numeric_program.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "expr/numeric_compiler.h"
#include "numeric/checked.h"

namespace tavrelo::expr {

namespace {

/// Whether all numbers are finite: adding 1 to an exponent of all ones, the mark of what is not, carries into
/// the sign. A loop without a branch, for the compiler to make parallel.
bool AllFinite(const double* numbers, std::size_t count) {
    constexpr std::uint64_t kExponent = 0x7FF0'0000'0000'0000;
    constexpr std::uint64_t kOne = 0x0010'0000'0000'0000;
    std::uint64_t carries = 0;
    for (std::size_t k = 0; k < count; ++k) {
        carries |= (std::bit_cast<std::uint64_t>(numbers[k]) & kExponent) + kOne;
    }
    return carries >> 63 == 0;
}

}  // namespace

bool NumericProgram::Compile(const Program& program, const VariableList& variables) {
    m_steps.clear();
    std::optional<CompiledSteps> compiled = CompileNumeric(program, variables);
    if (!compiled) {
        return false;
    }
    m_steps = std::move(compiled->steps);
    m_variables_needed = compiled->variables_needed;
    m_laid_aside = compiled->laid_aside;
    return true;
}

double NumericProgram::Run(const double* variables, double angle_factor) const {
    NumericFrame frame;
    frame.angle_factor = angle_factor;
    const NumericStep* first = m_steps.data();
    try {
        return first->functions.value(first, variables, frame, 0.0);
    } catch (const numeric::RuntimeFailure&) {
        return std::numeric_limits<double>::quiet_NaN();
    }
}

bool NumericProgram::RunBlock(const double* const* variables, double angle_factor,
                              std::span<double> values) const {
    BlockColumn columns[kLaidAside + 1];
    ColumnFrame frame;
    frame.angle_factor = angle_factor;
    frame.count = values.size();
    frame.variables = variables;
    frame.result = columns[kLaidAside].data();
    for (std::size_t k = 0; k < m_laid_aside; ++k) {
        frame.aside[k] = columns[k].data();
    }
    try {
        for (const NumericStep& step : m_steps) {
            step.functions.column(step, frame);
        }
    } catch (const numeric::RuntimeFailure&) {
        return false;
    }
    if (!AllFinite(frame.result, frame.count)) {
        return false;
    }
    std::copy_n(frame.result, frame.count, values.begin());
    return true;
}

}  // namespace tavrelo::expr
