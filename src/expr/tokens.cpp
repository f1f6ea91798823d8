#include "expr/tokens.h"

#include <algorithm>
#include <array>

#include "text/utf8.h"

namespace tavrelo::expr {

namespace {

constexpr int kFunctionPrecedence = 30;
constexpr std::string_view kEndName("\0", 1);

struct TokenDefinition {
    Token token;
    TokenRow row;
};

constexpr TokenDefinition kDefinitions[] = {
    {Token::Start, {"", kOpenerPrecedence, 1}},
    {Token::OpenParenthesis, {"(", kOpenerPrecedence, 1}},
    {Token::UnaryMinus, {"-", 18, 0}},
    {Token::Not, {"NOT", 8, 0}},
    {Token::End, {kEndName, 0, kCloser}},
    {Token::Comma, {",", 0, kCloser}},
    {Token::CloseParenthesis, {")", 0, kCloser}},
    {Token::Power, {"^", 20, 0}},
    {Token::Product, {"*", 17, 0}},
    {Token::Quotient, {"/", 17, 0}},
    {Token::IntegerQuotient, {"\\", 16, 0}},
    {Token::Mod, {"MOD", 15, 0}},
    {Token::Sum, {"+", 14, 0}},
    {Token::Difference, {"-", 14, 0}},
    {Token::Equal, {"=", 10, 0}},
    {Token::NotEqual, {"<>", 10, 0}},
    {Token::LessOrEqual, {"<=", 10, 0}},
    {Token::Less, {"<", 10, 0}},
    {Token::GreaterOrEqual, {">=", 10, 0}},
    {Token::Greater, {">", 10, 0}},
    {Token::And, {"AND", 7, 0}},
    {Token::Or, {"OR", 6, 0}},
    {Token::Xor, {"XOR", 6, 0}},
    {Token::Pi, {"PI", 0, 0}},
    {Token::Rads, {"RADS", 0, 0}},
    {Token::Abs, {"ABS", kFunctionPrecedence, 1}},
    {Token::Gar, {"GAR", kFunctionPrecedence, 1}},
    {Token::Rag, {"RAG", kFunctionPrecedence, 1}},
    {Token::Ent, {"ENT", kFunctionPrecedence, 1}},
    {Token::Fix, {"FIX", kFunctionPrecedence, 1}},
    {Token::Sgn, {"SGN", kFunctionPrecedence, 1}},
    {Token::R, {"R", kFunctionPrecedence, 1}},
    {Token::R3, {"R3", kFunctionPrecedence, 1}},
    {Token::Ln, {"LN", kFunctionPrecedence, 1}},
    {Token::Log10, {"LOG10", kFunctionPrecedence, 1}},
    {Token::Exp, {"EXP", kFunctionPrecedence, 1}},
    {Token::Sen, {"SEN", kFunctionPrecedence, 1}},
    {Token::Cos, {"COS", kFunctionPrecedence, 1}},
    {Token::Tan, {"TAN", kFunctionPrecedence, 1}},
    {Token::Cot, {"COT", kFunctionPrecedence, 1}},
    {Token::Csc, {"CSC", kFunctionPrecedence, 1}},
    {Token::Sec, {"SEC", kFunctionPrecedence, 1}},
    {Token::Atan, {"ATAN", kFunctionPrecedence, 1}},
    {Token::Asen, {"ASEN", kFunctionPrecedence, 1}},
    {Token::Acos, {"ACOS", kFunctionPrecedence, 1}},
    {Token::Acot, {"ACOT", kFunctionPrecedence, 1}},
    {Token::Acsc, {"ACSC", kFunctionPrecedence, 1}},
    {Token::Asec, {"ASEC", kFunctionPrecedence, 1}},
    {Token::Senh, {"SENH", kFunctionPrecedence, 1}},
    {Token::Cosh, {"COSH", kFunctionPrecedence, 1}},
    {Token::Min, {"MIN", kFunctionPrecedence, 2}},
    {Token::Max, {"MAX", kFunctionPrecedence, 2}},
    {Token::Sese, {"SESE", kFunctionPrecedence, 2}},
    {Token::Seco, {"SECO", kFunctionPrecedence, 2}},
    {Token::Cose, {"COSE", kFunctionPrecedence, 2}},
    {Token::Coco, {"COCO", kFunctionPrecedence, 2}},
    {Token::Atan2, {"ATAN2", kFunctionPrecedence, 2}},
    {Token::Coc, {"COC", kFunctionPrecedence, 2}},
    {Token::Hipo, {"HIPO", kFunctionPrecedence, 2}},
    {Token::Cate, {"CATE", kFunctionPrecedence, 2}},
    {Token::Stp1, {"STP1", kFunctionPrecedence, 3}},
    {Token::Iif, {"IIF", kFunctionPrecedence, 3}},
    {Token::Stp, {"STP", kFunctionPrecedence, 3}},
    {Token::Bar, {"BAR", kFunctionPrecedence, 3}},
};

constexpr std::size_t IndexOf(Token token) { return static_cast<std::size_t>(token); }

constexpr auto kRows = [] {
    std::array<TokenRow, kTokenCount> rows{};
    for (const TokenDefinition& definition : kDefinitions) {
        rows[IndexOf(definition.token)] = definition.row;
    }
    return rows;
}();

constexpr char ToCapital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/// The capitals of a name in one integer, so that names compare at once; 0 for a name longer than any
/// function's.
constexpr std::uint64_t PackName(std::string_view name) {
    if (name.size() > sizeof(std::uint64_t)) {
        return 0;
    }
    std::uint64_t packed = 0;
    for (const char c : name) {
        packed = packed << 8 | static_cast<unsigned char>(ToCapital(c));
    }
    return packed;
}

struct PackedFunction {
    std::uint64_t name;
    Token token;
};

constexpr std::size_t kFunctionCount =
    static_cast<std::size_t>(std::count_if(std::begin(kDefinitions), std::end(kDefinitions),
                                           [](const auto& d) { return d.token >= kFirstFunction; }));

/// The functions and constants by their packed names, ascending.
constexpr auto kFunctions = [] {
    std::array<PackedFunction, kFunctionCount> functions{};
    std::size_t count = 0;
    for (const TokenDefinition& definition : kDefinitions) {
        if (definition.token >= kFirstFunction) {
            functions[count++] = {PackName(definition.row.name), definition.token};
        }
    }
    std::sort(functions.begin(), functions.end(),
              [](const PackedFunction& a, const PackedFunction& b) { return a.name < b.name; });
    return functions;
}();

/// The operator of one sign alone, by its character: most of them, and no other begins with it.
constexpr auto kSingleSigns = [] {
    std::array<Token, 128> signs{};
    for (const char* sign = ",)^*/\\+-="; *sign != '\0'; ++sign) {
        for (std::size_t id = IndexOf(kFirstOperator); id <= IndexOf(kLastOperator); ++id) {
            if (kRows[id].name == std::string_view(sign, 1)) {
                signs[static_cast<unsigned char>(*sign)] = static_cast<Token>(id);
            }
        }
    }
    return signs;
}();

bool StandsAt(std::string_view text, std::size_t position, std::string_view name) {
    return text::EqualIgnoringCase(text.substr(position, name.size()), name);
}

}  // namespace

const std::array<TokenRow, kTokenCount> kTokenRows = kRows;

Token FindOperator(std::string_view text, std::size_t position) {
    if (position >= text.size()) {
        return Token::End;
    }
    const auto character = static_cast<unsigned char>(text[position]);
    if (character < kSingleSigns.size() && kSingleSigns[character] != Token::None) {
        return kSingleSigns[character];
    }
    const char first = ToCapital(text[position]);
    for (std::size_t id = IndexOf(kFirstOperator); id <= IndexOf(kLastOperator); ++id) {
        const std::string_view name = kRows[id].name;
        if (name.front() == first && StandsAt(text, position, name)) {
            return static_cast<Token>(id);
        }
    }
    return Token::None;
}

Token FindFunction(std::string_view name) {
    const std::uint64_t packed = PackName(name);
    const auto function =
        std::lower_bound(kFunctions.begin(), kFunctions.end(), packed,
                         [](const PackedFunction& row, std::uint64_t wanted) { return row.name < wanted; });
    return function != kFunctions.end() && function->name == packed ? function->token : Token::None;
}

}  // namespace tavrelo::expr
