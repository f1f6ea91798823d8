#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace tavrelo::text {

/// A cell of problem data: a number, a text (a symbol left unknown, or what was typed) or nothing.
class Value {
  public:
    Value() = default;
    Value(double number) : m_data(number) {}
    Value(int number) : m_data(static_cast<double>(number)) {}
    Value(std::string text) : m_data(std::move(text)) {}
    Value(std::string_view text) : m_data(std::string(text)) {}
    Value(const char* text) : m_data(std::string(text)) {}
    Value(bool) = delete;  // a truth is a field of its own

    bool IsEmpty() const { return std::holds_alternative<std::monostate>(m_data); }
    bool HoldsNumber() const { return std::holds_alternative<double>(m_data); }
    bool HoldsText() const { return std::holds_alternative<std::string>(m_data); }

    /// The held number or text itself, without a copy; null when something else is held.
    const double* IfNumber() const { return std::get_if<double>(&m_data); }
    const std::string* IfText() const { return std::get_if<std::string>(&m_data); }

    /// Becomes that number; without a temporary where a number was held before.
    void SetNumber(double number) {
        if (double* held = std::get_if<double>(&m_data)) {
            *held = number;
        } else {
            m_data = number;
        }
    }

    /// The number, or the number that the text writes (see ToNumber); nothing counts as 0.
    /// Fails with TypeMismatch on any other text.
    double Number() const;

    /// The default text form: numbers by NumberToText, nothing as the empty text.
    std::string Text() const;

    /// A number and a text are never equal; texts compare by case; nothing equals only nothing.
    friend bool operator==(const Value&, const Value&) = default;

  private:
    std::variant<std::monostate, double, std::string> m_data;
};

}  // namespace tavrelo::text
