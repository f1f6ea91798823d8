#pragma once

#include <string>

#include "text/value.h"

namespace tavrelo::expr {

/// What an operand is. A literal without a point stays the text it was, and becomes a number where one is
/// needed.
enum class OperandKind : unsigned char {
    Empty,  // a variable that was never assigned: 0 where a number is needed
    Number,
    NumericText,  // `number` holds its value
    WrongText,    // fails with TypeMismatch where a number is needed
    HugeText,     // fails with Overflow where a number is needed
};

/// One entry of the evaluation pile. Texts are not owned: they live in the program or in a variable.
struct Operand {
    double number;
    const std::string* text;
    OperandKind kind;
};

/// Whether the text is a number and, in `number`, which one.
OperandKind ClassifyText(const std::string& text, double& number);

Operand NumberOperand(double number);
Operand OperandOf(const text::Value& value);
text::Value ValueOf(const Operand& operand);

[[noreturn]] void ThrowNoNumber(const Operand& operand);

inline bool IsText(const Operand& operand) { return operand.kind >= OperandKind::NumericText; }

/// The number of the operand, its text converted; fails as its kind says.
inline double NumberOf(const Operand& operand) {
    if (operand.kind > OperandKind::NumericText) {
        ThrowNoNumber(operand);
    }
    return operand.number;
}

/// Below, at or above 0 as `a` is less than, equal to or greater than `b`. Two texts compare as texts, by
/// code; all else as numbers.
int Compare(const Operand& a, const Operand& b);

}  // namespace tavrelo::expr
