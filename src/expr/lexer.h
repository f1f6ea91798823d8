#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tavrelo::expr {

/// Walks a formula byte by byte. Every byte it accepts is ASCII, so a byte position is a character position
/// as well.
class Lexer {
  public:
    explicit Lexer(std::string_view text) : m_text(text) {}

    std::string_view Text() const { return m_text; }
    /// 0-based.
    std::size_t Position() const { return m_position; }
    void Skip(std::size_t count) { m_position += count; }

    /// The character `offset` places ahead; a NUL stands behind the text.
    char Peek(std::size_t offset = 0) const {
        const std::size_t at = m_position + offset;
        return at < m_text.size() ? m_text[at] : '\0';
    }
    /// The character before the current one; only behind the first one.
    char Previous() const { return m_text[m_position - 1]; }

    /// Blanks only: a tab or a line end is no separator.
    void SkipBlanks() {
        while (Peek() == ' ') {
            ++m_position;
        }
    }

    /// Digits, maybe a point and digits, maybe one of EeDd with a sign and digits; each part may be empty.
    std::string_view ParseNumber();

    /// Letters, digits and underscores, and skips the blanks behind them.
    std::string_view ParseName();

  private:
    void SkipDigits();

    std::string_view m_text;
    std::size_t m_position = 0;
};

inline bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The value of a number of ParseNumber that is digits alone, maybe with a point among them, few enough that
/// their digits and the power of ten are exact doubles and so the quotient is the nearest one. Nothing for
/// any other.
std::optional<double> ScanShortNumber(std::string_view number);

/// The value of a number of ParseNumber that holds a point, read as far as it goes: a missing mantissa is 0
/// and an exponent without digits is dropped. Fails with Overflow past the range of a double.
double ScanNumber(std::string_view number);

}  // namespace tavrelo::expr
