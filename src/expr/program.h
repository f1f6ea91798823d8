#pragma once

#include <string>
#include <vector>

#include "expr/operand.h"
#include "expr/operations.h"
#include "expr/tokens.h"
#include "expr/variables.h"

namespace tavrelo::expr {

/// One token of a formula in reverse Polish order. Of the last four members an operand uses either `variable`
/// or the other three; all other tokens use none.
struct Instruction {
    Token token = Token::None;
    OperandKind kind = OperandKind::Empty;
    const Operation* operation = nullptr;
    double number = 0.0;
    std::string text;
    VariablePtr variable;
};

/// A formula ready to be evaluated. Only a complete program may be.
struct Program {
    std::vector<Instruction> instructions;
    bool complete = false;
};

/// The token list as text, each token behind a blank: " 2 3 +".
std::string ProgramText(const Program& program);

/// The result, computed with the present values of the variables; texts in it live in the program or in a
/// variable. Fails with a RuntimeFailure.
Operand Run(const Program& program, double angle_factor);

}  // namespace tavrelo::expr
