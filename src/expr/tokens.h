#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavrelo::expr {

/// The words and signs of the formula language, by their number. The order matters twice: operators are
/// recognised in it (so "<>" and "<=" win over "<"), and everything from UnaryMinus to Not binds one operand
/// only.
enum class Token : std::uint8_t {
    None = 0,
    Operand = 1,  // a number or a variable
    Start = 2,    // bottom of the operator pile
    OpenParenthesis = 3,
    UnaryMinus = 4,
    Not = 5,
    End = 6,
    Comma = 7,
    CloseParenthesis = 8,
    Power = 9,
    Product = 10,
    Quotient = 11,
    IntegerQuotient = 12,
    Sum = 13,
    Difference = 14,
    Equal = 15,
    NotEqual = 16,
    LessOrEqual = 17,
    Less = 18,
    GreaterOrEqual = 19,
    Greater = 20,
    Mod = 21,
    And = 22,
    Or = 23,
    Xor = 24,
    Pi = 25,
    Rads = 26,
    Abs = 28,
    Gar = 29,
    Rag = 30,
    Ent = 31,
    Fix = 32,
    Sgn = 33,
    R = 34,
    R3 = 35,
    Ln = 36,
    Log10 = 37,
    Exp = 38,
    Sen = 39,
    Cos = 40,
    Tan = 41,
    Cot = 42,
    Csc = 43,
    Sec = 44,
    Atan = 45,
    Asen = 46,
    Acos = 47,
    Acot = 48,
    Acsc = 49,
    Asec = 50,
    Senh = 51,
    Cosh = 52,
    Min = 54,
    Max = 55,
    Sese = 56,
    Seco = 57,
    Cose = 58,
    Coco = 59,
    Atan2 = 60,
    Coc = 61,
    Hipo = 62,
    Cate = 63,
    Stp1 = 64,
    Iif = 65,
    Stp = 66,
    Bar = 67,
};

inline constexpr int kTokenCount = 68;
inline constexpr Token kFirstOperator = Token::End;
inline constexpr Token kLastOperator = Token::Xor;
inline constexpr Token kFirstWordOperator = Token::Mod;
inline constexpr Token kFirstFunction = Token::Pi;

/// `args` of the tokens that close something.
inline constexpr int kCloser = -1;
/// Precedence of the tokens that only a closer takes off the operator pile.
inline constexpr int kOpenerPrecedence = 255;

struct TokenRow {
    std::string_view name;
    int precedence = 0;
    int args = 0;  // 0 for operators and constants, kCloser, else the number of arguments
};

extern const std::array<TokenRow, kTokenCount> kTokenRows;

inline const TokenRow& RowOf(Token token) { return kTokenRows[static_cast<std::size_t>(token)]; }

/// The operator whose text stands at `position` (any case), or None. The byte behind the text counts as the
/// NUL that ends a formula.
Token FindOperator(std::string_view text, std::size_t position);

/// The function or constant of exactly this name (any case), or None.
Token FindFunction(std::string_view name);

}  // namespace tavrelo::expr
