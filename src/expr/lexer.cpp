#include "expr/lexer.h"

#include "text/number_text.h"

namespace tavrelo::expr {

namespace {

constexpr std::string_view kExponentLetters = "EeDd";

bool IsNameCharacter(char c) { return IsLetter(c) || IsDigit(c) || c == '_'; }
bool IsSign(char c) { return c == '+' || c == '-'; }

}  // namespace

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void Lexer::SkipBlanks() {
    while (Peek() == ' ') {
        ++m_position;
    }
}

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

double ScanNumber(std::string_view number) {
    const std::size_t letter = number.find_first_of(kExponentLetters);
    const std::string_view mantissa = number.substr(0, letter);
    if (mantissa.find_first_of("0123456789") == std::string_view::npos) {
        return 0.0;
    }
    const bool complete = letter == std::string_view::npos || IsDigit(number.back());
    return text::LiteralToNumber(complete ? number : mantissa);
}

}  // namespace tavrelo::expr
