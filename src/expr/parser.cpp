#include "expr/parser.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "expr/lexer.h"
#include "numeric/checked.h"
#include "text/utf8.h"

namespace tavrelo::expr {

namespace {

constexpr std::size_t kMaxInstructions = 100;
/// Entries of the operator pile and of the argument pile, their bottom included.
constexpr std::size_t kPileEntries = 31;

constexpr std::string_view kVariableNames = "XYZxyz";

constexpr std::string_view kMissingParenthesis = ": Falta paréntesis";
constexpr std::string_view kUnexpectedEnd = ": No se espera fin de la expresión";
constexpr std::string_view kUnknownSymbol = ": Símbolo desconocido";

std::string_view TextOf(ParseErrorCode code) {
    switch (code) {
        case ParseErrorCode::None:
            break;
        case ParseErrorCode::Syntax:
            return "Error de sintaxis";
        case ParseErrorCode::UnknownName:
            return "Símbolo o función desconocido";
        case ParseErrorCode::UnknownOperator:
            return "Operador desconocido";
        case ParseErrorCode::ArgumentCount:
            return "Número de argumentos incorrecto para ";
    }
    return {};
}

/// Ends the parse; caught where it began.
struct Refusal {
    ParseErrorCode code;
    std::string_view detail;
};

[[noreturn]] void Refuse(ParseErrorCode code, std::string_view detail = {}) { throw Refusal{code, detail}; }

template <typename Entry>
class Pile {
  public:
    void Push(Entry entry) {
        if (m_count == kPileEntries) {
            throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "pile of the parser");
        }
        m_entries[m_count++] = entry;
    }
    Entry& Top() { return m_entries[m_count - 1]; }
    void Pop() { --m_count; }
    std::size_t Count() const { return m_count; }
    /// The entry just below the top; nothing below the bottom.
    std::optional<Entry> BelowTop() const {
        return m_count >= 2 ? std::optional<Entry>(m_entries[m_count - 2]) : std::nullopt;
    }

  private:
    Entry m_entries[kPileEntries];
    std::size_t m_count = 0;
};

class Parser {
  public:
    Parser(std::string_view text, VariableList& variables, bool create_variables, Program& program)
        : m_lexer(text), m_variables(variables), m_create_variables(create_variables), m_program(program) {}

    ParseError Run();

  private:
    void ParseAll();
    void ParseOperand();
    void ParseNumber();
    void ParseNamed();
    void ParseVariable(std::string_view name);
    void ParseConstant(Token token);
    void ParseCall(Token function);
    /// False at the end of the formula.
    bool ParseOperator();

    Token TakeOperator();
    void Reduce(Token incoming);
    void End();
    void Close();
    void Separate();

    [[noreturn]] void RefuseArgumentCount();
    void PushOperator(Token token);
    Instruction& AddToRPN(Token token);

    Lexer m_lexer;
    VariableList& m_variables;
    bool m_create_variables;
    Program& m_program;
    Pile<Token> m_operators;
    Pile<int> m_arguments;  // arguments still due in each open parenthesis
    bool m_expect_operator = false;
    std::size_t m_token_start = 0;
};

ParseError Parser::Run() {
    try {
        ParseAll();
        m_program.complete = true;
        return {};
    } catch (const Refusal& refusal) {
        return {refusal.code, std::string(TextOf(refusal.code)).append(refusal.detail),
                static_cast<int>(m_token_start) + 1};
    }
}

void Parser::ParseAll() {
    PushOperator(Token::Start);
    for (bool open = true; open;) {
        m_lexer.SkipBlanks();
        m_token_start = m_lexer.Position();
        if (m_expect_operator) {
            open = ParseOperator();
        } else {
            ParseOperand();
        }
    }
}

void Parser::ParseOperand() {
    const char c = m_lexer.Peek();
    if (IsDigit(c) || c == '.') {
        ParseNumber();
    } else if (IsLetter(c)) {
        ParseNamed();
    } else if (c == '+') {
        m_lexer.Skip(1);
    } else if (c == '-') {
        PushOperator(Token::UnaryMinus);
        m_lexer.Skip(1);
    } else if (c == '(') {
        PushOperator(Token::OpenParenthesis);
        m_lexer.Skip(1);
    } else {
        Refuse(ParseErrorCode::Syntax, c == '\0' ? kUnexpectedEnd : kUnknownSymbol);
    }
}

/// A minus right before a number belongs to the number: -2^2 is 4.
void Parser::ParseNumber() {
    const std::string_view literal = m_lexer.ParseNumber();
    const bool has_point = literal.find('.') != std::string_view::npos;
    const bool negated = m_operators.Top() == Token::UnaryMinus;
    if (negated) {
        m_operators.Pop();
    }
    Instruction& instruction = AddToRPN(Token::Operand);
    if (has_point) {
        instruction.number = ScanNumber(literal);
        instruction.kind = OperandKind::Number;
    } else {
        instruction.text = literal;
        if (const auto value = ScanShortNumber(literal)) {
            instruction.number = *value;
            instruction.kind = OperandKind::NumericText;
        } else {
            instruction.kind = ClassifyText(instruction.text, instruction.number);
        }
    }
    if (negated) {
        instruction.number = -NumberOf({instruction.number, &instruction.text, instruction.kind});
        instruction.kind = OperandKind::Number;
    }
    m_expect_operator = true;
}

void Parser::ParseNamed() {
    const std::string_view name = m_lexer.ParseName();
    const Token function = FindFunction(name);
    if (function != Token::None) {
        if (RowOf(function).args == 0) {
            ParseConstant(function);
        } else {
            ParseCall(function);
        }
    } else if (text::EqualIgnoringCase(name, RowOf(Token::Not).name)) {
        PushOperator(Token::Not);
    } else {
        ParseVariable(name);
    }
}

/// Only X, Y and Z are variables; the name is tested after the variable was made, which therefore stays.
void Parser::ParseVariable(std::string_view name) {
    VariablePtr variable = m_variables.Find(name);
    if (!variable && m_create_variables) {
        variable = m_variables.Create(name);
    }
    if (name.size() > 1 || kVariableNames.find(name.front()) == std::string_view::npos) {
        Refuse(ParseErrorCode::UnknownName);
    }
    if (!variable) {
        Refuse(ParseErrorCode::UnknownName, name);
    }
    AddToRPN(Token::Operand).variable = std::move(variable);
    m_expect_operator = true;
}

/// An empty pair of parentheses behind a constant is decoration.
void Parser::ParseConstant(Token token) {
    AddToRPN(token);
    m_expect_operator = true;
    if (m_lexer.Peek() == '(' && m_lexer.Peek(1) == ')') {
        m_lexer.Skip(2);
    }
}

void Parser::ParseCall(Token function) {
    if (m_lexer.Peek() != '(') {
        Refuse(ParseErrorCode::Syntax, kMissingParenthesis);
    }
    PushOperator(function);
    PushOperator(Token::OpenParenthesis);
    m_lexer.Skip(1);
    // The arguments inside the parenthesis are those of the function.
    m_arguments.Pop();
}

bool Parser::ParseOperator() {
    const Token token = TakeOperator();
    Reduce(token);
    if (RowOf(token).args == kCloser) {
        // One argument ended. One at least was due: the comma that ends the last one is refused.
        --m_arguments.Top();
    }
    switch (token) {
        case Token::End:
            End();
            return false;
        case Token::CloseParenthesis:
            Close();
            return true;
        case Token::Comma:
            Separate();
            return true;
        default:
            PushOperator(token);
            m_expect_operator = false;
            return true;
    }
}

/// The operator at the current position, which moves behind it.
Token Parser::TakeOperator() {
    const Token token = FindOperator(m_lexer.Text(), m_lexer.Position());
    if (token == Token::None) {
        Refuse(ParseErrorCode::UnknownOperator);
    }
    const char before = m_lexer.Previous();
    m_lexer.Skip(RowOf(token).name.size());
    const char behind = m_lexer.Peek();
    const bool stands_alone = (before == ' ' || before == ')') && (behind == ' ' || behind == '(');
    if (token >= kFirstWordOperator && !stands_alone) {
        Refuse(ParseErrorCode::Syntax);
    }
    return token;
}

/// Moves the waiting operators that bind at least as strongly as `incoming` into the program. Equal
/// precedence moves, so that all binary operators associate to the left.
void Parser::Reduce(Token incoming) {
    while (true) {
        const Token top = m_operators.Top();
        const int precedence = RowOf(top).precedence;
        if (precedence < RowOf(incoming).precedence || precedence == kOpenerPrecedence) {
            return;
        }
        AddToRPN(top);
        m_operators.Pop();
    }
}

/// What is not in parentheses is one argument, which a comma outside of them would have ended.
void Parser::End() {
    if (m_operators.Count() != 1) {
        Refuse(ParseErrorCode::Syntax);
    }
}

void Parser::Close() {
    if (m_operators.Top() != Token::OpenParenthesis) {
        Refuse(ParseErrorCode::Syntax);
    }
    if (m_arguments.Top() != 0) {
        RefuseArgumentCount();
    }
    m_operators.Pop();
    m_arguments.Pop();
}

void Parser::Separate() {
    if (m_arguments.Top() == 0) {
        RefuseArgumentCount();
    }
    m_expect_operator = false;
}

/// Named is what stands below the open parenthesis: the function of a call.
void Parser::RefuseArgumentCount() {
    Refuse(ParseErrorCode::ArgumentCount, RowOf(m_operators.BelowTop().value_or(Token::None)).name);
}

void Parser::PushOperator(Token token) {
    m_operators.Push(token);
    if (RowOf(token).args >= 1) {
        m_arguments.Push(RowOf(token).args);
    }
}

Instruction& Parser::AddToRPN(Token token) {
    std::vector<Instruction>& instructions = m_program.instructions;
    if (instructions.size() == kMaxInstructions) {
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "tokens of a formula");
    }
    Instruction& instruction = instructions.emplace_back();
    instruction.token = token;
    instruction.operation = &OperationOf(token);
    return instruction;
}

}  // namespace

ParseError ParseExpression(std::string_view text, VariableList& variables, bool create_variables,
                           Program& program) {
    program.complete = false;
    program.instructions.clear();
    // No token is shorter than a character.
    program.instructions.reserve(std::min(text.size(), kMaxInstructions));
    return Parser(text, variables, create_variables, program).Run();
}

}  // namespace tavrelo::expr
