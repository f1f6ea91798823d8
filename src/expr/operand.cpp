#include "expr/operand.h"

#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::expr {

OperandKind ClassifyText(const std::string& text, double& number) {
    const text::LiteralReading reading = text::ReadLiteral(text);
    number = reading.value;
    if (!reading.failure) {
        return OperandKind::NumericText;
    }
    return *reading.failure == numeric::FailureCode::Overflow ? OperandKind::HugeText
                                                              : OperandKind::WrongText;
}

Operand NumberOperand(double number) { return {number, nullptr, OperandKind::Number}; }

Operand OperandOf(const text::Value& value) {
    if (const double* number = value.IfNumber()) {
        return NumberOperand(*number);
    }
    Operand operand{0.0, value.IfText(), OperandKind::Empty};
    if (operand.text) {
        operand.kind = ClassifyText(*operand.text, operand.number);
    }
    return operand;
}

text::Value ValueOf(const Operand& operand) {
    if (IsText(operand)) {
        return *operand.text;
    }
    return operand.kind == OperandKind::Number ? text::Value(operand.number) : text::Value();
}

void ThrowNoNumber(const Operand& operand) {
    throw numeric::RuntimeFailure(operand.kind == OperandKind::HugeText ? numeric::FailureCode::Overflow
                                                                        : numeric::FailureCode::TypeMismatch,
                                  "text in a formula");
}

int Compare(const Operand& a, const Operand& b) {
    if (IsText(a) && IsText(b)) {
        return a.text->compare(*b.text);
    }
    const double left = NumberOf(a);
    const double right = NumberOf(b);
    return left < right ? -1 : left > right ? 1 : 0;
}

}  // namespace tavrelo::expr
