#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "expr/operations.h"
#include "expr/tokens.h"

namespace tavrelo::expr {

struct NumericStep;

/// Entries that a program may lay aside: as many as the evaluation pile holds.
inline constexpr std::size_t kLaidAside = 30;

/// Where a program of steps keeps what it has laid aside.
struct NumericFrame {
    double angle_factor;
    double aside[kLaidAside];
};

/// A block of points that are evaluated together: few enough that the columns in use stay in the first cache.
inline constexpr std::size_t kBlock = 128;
using BlockColumn = std::array<double, kBlock>;

struct ColumnFrame {
    double angle_factor;
    std::size_t count;               // points in use
    const double* const* variables;  // a column each
    double* result;
    double* aside[kLaidAside];
};

/// Does the step and all that follow; `result` is what the steps before have left. The result of the last
/// step.
using ValueOfSteps = double (*)(const NumericStep* step, const double* variables, NumericFrame& frame,
                                double result);
/// Does the step for a block of points.
using ColumnOfStep = void (*)(const NumericStep& step, ColumnFrame& frame);

/// The two forms of a step: for one point and for a block of them.
struct StepFunctions {
    ValueOfSteps value = nullptr;
    ColumnOfStep column = nullptr;
};

/// One step of a numeric program. It works on the result of the steps before, on what was laid aside and on
/// operands of its own.
struct NumericStep {
    StepFunctions functions;
    double constant = 0.0;
    std::uint16_t first = 0;  // variables
    std::uint16_t second = 0;
    std::uint16_t aside = 0;  // the entry to lay down or to take up
    const Operation* operation = nullptr;
};

/// An operand that needs no step of its own: a variable (V), a constant (C) or two of them under one
/// operation. What is missing is written otherwise: V - C as V + (-C), C + V as V + C.
enum class Source : std::uint8_t {
    Variable,
    Constant,
    VariablePlusConstant,
    VariableTimesConstant,
    VariableByConstant,
    ConstantMinusVariable,
    ConstantByVariable,
    VariablePlusVariable,
    VariableMinusVariable,
    VariableTimesVariable,
    VariableByVariable,
};
inline constexpr std::size_t kSources = 11;
inline constexpr bool IsSingle(Source source) { return source <= Source::Constant; }

/// Functions of one number that have steps of their own.
enum class Native : std::uint8_t {
    Minus,
    Abs,
    Square,
    Cube,
    Fourth,
    Root,
    Log,
    Exp,
    Sine,
    Cosine,
    Tangent,
    ArcTangent
};
inline constexpr std::size_t kNatives = 12;

// The functions of a step. None of them fails: where there is no result it is an infinity or not a number,
// and every step hands that on, whatever it does with it. The exception are the steps of `CallOf...`, which
// fail as the operation they call, maybe with another failure than the one that comes first in the formula.

StepFunctions EndOfProgram();
/// The result becomes the operand; with `lay_aside` the former result is laid aside first.
StepFunctions LoadOf(Source source, bool lay_aside);
/// As LoadOf with a function of the operand; nothing for the sources that need a LoadOf before.
StepFunctions LoadOf(Native function, Source source, bool lay_aside);
StepFunctions ApplyOf(Native function);
/// The result and an operand under a binary operator; `reversed`: the operand stands on the left. Nothing for
/// an operator without such a step.
StepFunctions CombineOf(Token token, Source source, bool reversed);
/// What was laid aside and the result under a binary operator; nothing as above.
StepFunctions JoinOf(Token token);
/// IIF, STP and BAR of what was laid aside (two entries, the first in `aside`) and the result.
StepFunctions TernaryOf(Token token);
/// Any operation of one or two numbers, by its function.
StepFunctions CallOfUnary();
StepFunctions CallOfBinary();

}  // namespace tavrelo::expr
