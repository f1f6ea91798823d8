#include "expr/program.h"

#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::expr {

namespace {

constexpr double kTrue = -1.0;
constexpr double kFalse = 0.0;

/// The accumulator and the entries below it, the first of which is what the accumulator held at the start.
/// Each member of the operands has an array of its own: a copy of a whole operand that was just written in
/// parts would stall the processor, and this is the innermost loop of every curve and integral.
class EvaluationPile {
  public:
    void Push(double number, const std::string* text, OperandKind kind) {
        if (m_count == kEntries) {
            throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "evaluation pile");
        }
        m_numbers[m_count] = m_number;
        m_texts[m_count] = m_text;
        m_kinds[m_count] = m_kind;
        ++m_count;
        m_number = number;
        m_text = text;
        m_kind = kind;
    }
    void PushNumber(double number) { Push(number, nullptr, OperandKind::Number); }

    Operand Accumulator() const { return {m_number, m_text, m_kind}; }
    /// The entry `below` places under the accumulator, from 1.
    Operand Below(std::size_t below) const {
        const std::size_t at = m_count - below;
        return {m_numbers[at], m_texts[at], m_kinds[at]};
    }
    double AccumulatorNumber() const { return NumberOf(Accumulator()); }
    double NumberBelow(std::size_t below) const { return NumberOf(Below(below)); }

    /// Drops `count` entries below the accumulator, which becomes `number`.
    void Reduce(std::size_t count, double number) {
        m_count -= count;
        m_number = number;
        m_kind = OperandKind::Number;
    }
    void Reduce(std::size_t count, const Operand& operand) {
        m_count -= count;
        m_number = operand.number;
        m_text = operand.text;
        m_kind = operand.kind;
    }

  private:
    static constexpr std::size_t kEntries = 30;
    double m_number = 0.0;
    const std::string* m_text = nullptr;
    OperandKind m_kind = OperandKind::Empty;
    std::size_t m_count = 0;
    double m_numbers[kEntries] = {};
    const std::string* m_texts[kEntries] = {};
    OperandKind m_kinds[kEntries] = {};
};

Operand Load(const Instruction& instruction) {
    if (instruction.variable) {
        return OperandOf(instruction.variable->Value);
    }
    return {instruction.number, &instruction.text, instruction.kind};
}

void PushOperand(const Instruction& instruction, EvaluationPile& pile) {
    const Operand operand = Load(instruction);
    pile.Push(operand.number, operand.text, operand.kind);
}

inline void Apply(const Instruction& instruction, EvaluationPile& pile, double angle_factor) {
    const Operation& operation = *instruction.operation;
    switch (operation.action) {
        case Action::Load:
            PushOperand(instruction, pile);
            break;
        case Action::Constant:
            pile.PushNumber(operation.constant);
            break;
        case Action::Unary:
            pile.Reduce(0, operation.unary(pile.AccumulatorNumber(), angle_factor));
            break;
        case Action::Binary:
            pile.Reduce(1, operation.binary(pile.NumberBelow(1), pile.AccumulatorNumber(), angle_factor));
            break;
        case Action::Ternary:
            pile.Reduce(
                2, operation.ternary(pile.NumberBelow(2), pile.NumberBelow(1), pile.AccumulatorNumber()));
            break;
        case Action::Compare:
            pile.Reduce(1, operation.holds(Compare(pile.Below(1), pile.Accumulator())) ? kTrue : kFalse);
            break;
        case Action::Smaller:
            pile.Reduce(1,
                        Compare(pile.Below(1), pile.Accumulator()) < 0 ? pile.Below(1) : pile.Accumulator());
            break;
        case Action::Larger:
            pile.Reduce(1,
                        Compare(pile.Below(1), pile.Accumulator()) > 0 ? pile.Below(1) : pile.Accumulator());
            break;
        case Action::Choose:
            pile.Reduce(2, pile.NumberBelow(2) != 0.0 ? pile.Below(1) : pile.Accumulator());
            break;
        case Action::Step:
            // Takes one entry only, though it was given three arguments: its first one stays below.
            pile.Reduce(1, Compare(pile.Below(1), pile.Accumulator()) >= 0 ? 1.0 : 0.0);
            break;
        case Action::None:
            throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "token without a rule");
    }
}

std::string InstructionText(const Instruction& instruction) {
    if (instruction.token != Token::Operand) {
        return std::string(RowOf(instruction.token).name);
    }
    if (instruction.variable) {
        return instruction.variable->Name;
    }
    return ValueOf(Load(instruction)).Text();
}

}  // namespace

std::string ProgramText(const Program& program) {
    std::string text;
    for (const Instruction& instruction : program.instructions) {
        text.append(" ").append(InstructionText(instruction));
    }
    return text;
}

Operand Run(const Program& program, double angle_factor) {
    EvaluationPile pile;
    for (const Instruction& instruction : program.instructions) {
        Apply(instruction, pile, angle_factor);
    }
    const Operand result = pile.Accumulator();
    if (result.kind == OperandKind::Number) {
        numeric::Finite(result.number);
    }
    return result;
}

}  // namespace tavrelo::expr
