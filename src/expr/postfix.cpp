#include "expr/postfix.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "expr/operations.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::expr {

namespace {

constexpr std::string_view kPostfixError = "Error en la expresión NPI.";
constexpr std::string_view kExpressionError = "Error en la expresión.";
constexpr std::string_view kStrangeCharacter =
    "Literal extraña en la expresión (Estás en notación polaca inversa).";
constexpr std::string_view kStrangeCharacterTitle = "Fis";
constexpr std::string_view kTitle = "Tavrelo";

/// Characters that no token has.
constexpr std::u32string_view kStrangeCharacters = U"!#$%&()=?¡´][{}_;><|°";

struct WordRow {
    std::string_view word;
    Token token;
};

constexpr WordRow kWords[] = {
    {"ñ", Token::Power},
    {"^", Token::Power},
    {"m", Token::Product},
    {"*", Token::Product},
    {"d", Token::Quotient},
    {"/", Token::Quotient},
    {"de", Token::IntegerQuotient},
    {"\\", Token::IntegerQuotient},
    {"mod", Token::Mod},
    {"+", Token::Sum},
    {"-", Token::Difference},
    {"r", Token::R},
    {"r2", Token::R},
    {"r3", Token::R3},
    {"ln", Token::Ln},
    {"log10", Token::Log10},
    {"exp", Token::Exp},
    {"sen", Token::Sen},
    {"cos", Token::Cos},
    {"tan", Token::Tan},
    {"asen", Token::Asen},
    {"acos", Token::Acos},
    {"atan", Token::Atan},
    {"cosh", Token::Senh},
    {"senh", Token::Cosh},
    {"sese", Token::Sese},
    {"seco", Token::Seco},
    {"cose", Token::Cose},
    {"coco", Token::Coco},
    {"atan2", Token::Atan2},
    {"coc", Token::Coc},
};
constexpr std::string_view kPiWord = "pi";

/// Ends the evaluation with a message box; caught where it began.
struct Refusal {
    std::string_view title;
    std::string_view text;
};

class NumberPile {
  public:
    void Push(double number) { m_numbers.push_back(numeric::Finite(number)); }
    double Pop() {
        if (m_numbers.empty()) {
            throw Refusal{kTitle, kExpressionError};
        }
        const double number = m_numbers.back();
        m_numbers.pop_back();
        return number;
    }
    bool IsEmpty() const { return m_numbers.empty(); }

  private:
    std::vector<double> m_numbers;
};

void ApplyOperation(const Operation& operation, NumberPile& pile) {
    const double last = pile.Pop();
    if (operation.action == Action::Unary) {
        pile.Push(operation.unary(last, numeric::kRadiansPerDegree));
    } else {
        const double first = pile.Pop();
        pile.Push(operation.binary(first, last, numeric::kRadiansPerDegree));
    }
}

void ApplyWord(const std::string& word, NumberPile& pile) {
    if (word == kPiWord) {
        pile.Push(4.0 * std::atan(1.0));
        return;
    }
    const auto row = std::find_if(std::begin(kWords), std::end(kWords),
                                  [&](const WordRow& known) { return known.word == word; });
    if (row == std::end(kWords)) {
        throw Refusal{kTitle, kExpressionError};
    }
    ApplyOperation(OperationOf(row->token), pile);
}

void ApplyToken(std::string_view token, NumberPile& pile) {
    if (token.empty()) {
        return;
    }
    if (text::IsNum(token)) {
        pile.Push(text::ToNumber(token));
    } else {
        ApplyWord(text::ToLower(token), pile);
    }
}

double EvaluateTokens(std::string_view text) {
    NumberPile pile;
    std::size_t start = 0;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t at = position;
        const char32_t character = text::NextCodePoint(text, position);
        if (kStrangeCharacters.find(character) != std::u32string_view::npos) {
            throw Refusal{kStrangeCharacterTitle, kStrangeCharacter};
        }
        if (character == U' ') {
            ApplyToken(text.substr(start, at - start), pile);
            start = position;
        }
    }
    ApplyToken(text.substr(start), pile);
    const double result = pile.Pop();
    if (!pile.IsEmpty()) {
        throw Refusal{kTitle, kExpressionError};
    }
    return result;
}

}  // namespace

PostfixResult EvalRPN(std::string_view text) {
    try {
        return {EvaluateTokens(text), {}, std::nullopt};
    } catch (const Refusal& refusal) {
        return {std::nullopt, std::string(kPostfixError),
                PostfixBox{std::string(refusal.title), std::string(refusal.text)}};
    } catch (const numeric::RuntimeFailure&) {
        return {std::nullopt, std::string(kExpressionError), std::nullopt};
    }
}

}  // namespace tavrelo::expr
