#include "expr/lexer.h"

#include <cstdint>

#include "text/number_text.h"

namespace tavrelo::expr {

namespace {

constexpr std::string_view kExponentLetters = "EeDd";

bool IsNameCharacter(char c) { return IsLetter(c) || IsDigit(c) || c == '_'; }
bool IsSign(char c) { return c == '+' || c == '-'; }

}  // namespace

void Lexer::SkipDigits() {
    while (IsDigit(Peek())) {
        ++m_position;
    }
}

std::string_view Lexer::ParseNumber() {
    const std::size_t start = m_position;
    SkipDigits();
    if (Peek() == '.') {
        ++m_position;
        SkipDigits();
    }
    if (kExponentLetters.find(Peek()) != std::string_view::npos) {
        ++m_position;
        m_position += IsSign(Peek()) ? 1 : 0;
        SkipDigits();
    }
    return m_text.substr(start, m_position - start);
}

std::string_view Lexer::ParseName() {
    const std::size_t start = m_position;
    while (IsNameCharacter(Peek())) {
        ++m_position;
    }
    const std::string_view name = m_text.substr(start, m_position - start);
    SkipBlanks();
    return name;
}

std::optional<double> ScanShortNumber(std::string_view number) {
    constexpr std::size_t kExactDigits = 15;
    static constexpr double kPowersOfTen[kExactDigits + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (number.size() > kExactDigits || number.find_first_of("0123456789") == std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool behind_point = false;
    for (const char c : number) {
        if (IsDigit(c)) {
            digits = 10 * digits + (c - '0');
            decimals += behind_point ? 1 : 0;
        } else if (c == '.' && !behind_point) {
            behind_point = true;
        } else {
            return std::nullopt;
        }
    }
    return static_cast<double>(digits) / kPowersOfTen[decimals];
}

double ScanNumber(std::string_view number) {
    if (const auto value = ScanShortNumber(number)) {
        return *value;
    }
    const std::size_t letter = number.find_first_of(kExponentLetters);
    const std::string_view mantissa = number.substr(0, letter);
    if (mantissa.find_first_of("0123456789") == std::string_view::npos) {
        return 0.0;
    }
    const bool complete = letter == std::string_view::npos || IsDigit(number.back());
    return text::LiteralToNumber(complete ? number : mantissa);
}

}  // namespace tavrelo::expr
