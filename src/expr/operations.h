#pragma once

#include "expr/tokens.h"

namespace tavrelo::expr {

/// How a token works on the evaluation pile.
enum class Action : unsigned char {
    None,  // never part of a program
    Load,  // an operand of the program itself
    Constant,
    Unary,  // the three kinds that compute with numbers only
    Binary,
    Ternary,
    Compare,  // the kinds below keep or compare operands in the form they have
    Smaller,
    Larger,
    Choose,
    Step,
};

/// Mathematics of one number or more; `angle_factor` is the radians in one unit of angle. Each fails with a
/// RuntimeFailure where it has no finite result.
using UnaryFunction = double (*)(double x, double angle_factor);
using BinaryFunction = double (*)(double a, double b, double angle_factor);
using TernaryFunction = double (*)(double a, double b, double c);
/// Whether a comparison holds for the sign of (left - right).
using Relation = bool (*)(int order);

/// One row of the operations: the action and the one member that it uses.
struct Operation {
    Action action = Action::None;
    double constant = 0.0;
    UnaryFunction unary = nullptr;
    BinaryFunction binary = nullptr;
    TernaryFunction ternary = nullptr;
    Relation holds = nullptr;
};

const Operation& OperationOf(Token token);

}  // namespace tavrelo::expr
