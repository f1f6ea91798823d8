#pragma once

#include <string>
#include <string_view>

#include "expr/program.h"
#include "expr/variables.h"

namespace tavrelo::expr {

enum class ParseErrorCode {
    None = 0,
    Syntax = 1,
    UnknownName = 2,
    UnknownOperator = 3,
    ArgumentCount = 4,
};

/// How a parse ended: on success all members are at their start values.
struct ParseError {
    ParseErrorCode code = ParseErrorCode::None;
    std::string description;  // what the user reads
    int position = 0;         // 1-based, in characters, of the token that was being examined
};

/// Turns a formula into a program in one pass of operator precedence. Variables that the formula names are
/// looked up in `variables` and, with `create_variables`, made there: even those whose name is then refused.
/// On an error `program` stays incomplete, as far as it got.
///
/// Fails with a RuntimeFailure, instead of an error, when one of the fixed piles or the program is full
/// (SubscriptRange) and when a number that must be converted at once cannot be (Overflow, TypeMismatch).
ParseError ParseExpression(std::string_view text, VariableList& variables, bool create_variables,
                           Program& program);

}  // namespace tavrelo::expr
