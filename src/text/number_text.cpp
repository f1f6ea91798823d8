#include "text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>
#include <system_error>

#include "numeric/checked.h"

namespace tavrelo::text {

namespace {

constexpr int kSignificantDigits = 15;
/// From here on a number has no decimals among its significant digits.
constexpr double kFirstWithoutDecimals = 1e15;
/// Room for any double in general or scientific form.
constexpr std::size_t kNumberBuffer = 40;
constexpr std::string_view kMarkupMinus = ";-";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }
bool IsExponentLetter(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view WithoutSign(std::string_view text) {
    if (!text.empty() && IsSign(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

bool AreDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), IsDigit); }

/// Digits and at most one point; nothing at all and the point alone pass.
bool AreDigitsAndPoint(std::string_view text) {
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos) {
        return AreDigits(text);
    }
    return AreDigits(text.substr(0, point)) && AreDigits(text.substr(point + 1));
}

bool HoldsDigit(std::string_view text) { return std::any_of(text.begin(), text.end(), IsDigit); }

/// A text of the shape [sign] digits [point digits] [letter [sign] digits], taken apart.
struct NumberShape {
    bool negative;
    std::string_view mantissa;
    std::string_view exponent;  // without its letter; empty when there is none
};

std::optional<NumberShape> ShapeOf(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    text = WithoutSign(text);
    const auto letter = std::find_if(text.begin(), text.end(), IsExponentLetter);
    const auto length = static_cast<std::size_t>(letter - text.begin());
    NumberShape shape{negative, text.substr(0, length), {}};
    if (letter != text.end()) {
        shape.exponent = text.substr(length + 1);
        const std::string_view digits = WithoutSign(shape.exponent);
        if (digits.empty() || !AreDigits(digits)) {
            return std::nullopt;
        }
    }
    if (!AreDigitsAndPoint(shape.mantissa) || !HoldsDigit(shape.mantissa)) {
        return std::nullopt;
    }
    return shape;
}

/// The exponent as a number, held within bounds that no text of a sensible length can outweigh.
long long BoundedExponent(std::string_view exponent) {
    constexpr long long kBound = 1'000'000'000'000;
    long long size = 0;
    for (const char c : WithoutSign(exponent)) {
        size = std::min(kBound, size * 10 + (c - '0'));
    }
    return !exponent.empty() && exponent.front() == '-' ? -size : size;
}

/// True when a number that no double can hold is too large, false when it is too small.
bool IsTooLarge(const NumberShape& shape) {
    const std::size_t point = std::min(shape.mantissa.find('.'), shape.mantissa.size());
    const std::size_t first = shape.mantissa.find_first_not_of("0.");
    return first != std::string_view::npos &&
           static_cast<long long>(point) - static_cast<long long>(first) + BoundedExponent(shape.exponent) >
               0;
}

/// The value of the shape, an underflow being 0; nothing past the range of a double.
std::optional<double> ValueOf(const NumberShape& shape) {
    std::string with_plain_exponent;
    std::string_view text = shape.mantissa;
    if (!shape.exponent.empty()) {
        with_plain_exponent.append(shape.mantissa).append("e").append(shape.exponent);
        text = with_plain_exponent;
    }
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (IsTooLarge(shape)) {
            return std::nullopt;
        }
        value = 0.0;
    }
    return shape.negative ? 0.0 - value : value;
}

bool IsPlainNumber(std::string_view text) {
    return text != "-" && text != "." && text != "+" && AreDigitsAndPoint(WithoutSign(text));
}

bool IsGeneralNumber(std::string_view text) {
    const auto shape = ShapeOf(WithoutBlanks(text));
    return shape && text.find_first_of("eDd") == std::string_view::npos && ValueOf(*shape);
}

double ValueOrOverflow(const NumberShape& shape) {
    const std::optional<double> value = ValueOf(shape);
    if (!value) {
        throw numeric::RuntimeFailure(numeric::FailureCode::Overflow, "number text");
    }
    return *value;
}

/// A number as fifteen decimal digits and the power of ten of the last of them.
struct DecimalNumber {
    bool negative;
    std::uint64_t digits;
    int last_exponent;
};

DecimalNumber ToDecimal(double number) {
    char buffer[kNumberBuffer];
    const auto result = std::to_chars(buffer, buffer + kNumberBuffer, std::abs(number),
                                      std::chars_format::scientific, kSignificantDigits - 1);
    DecimalNumber decimal{number < 0.0, 0, 0};
    const char* c = buffer;
    for (; *c != 'e'; ++c) {
        if (*c != '.') {
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*c - '0');
        }
    }
    const char* exponent = c[1] == '+' ? c + 2 : c + 1;
    std::from_chars(exponent, result.ptr, decimal.last_exponent);
    decimal.last_exponent -= kSignificantDigits - 1;
    return decimal;
}

/// The powers of ten that a double holds exactly.
constexpr double kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// The double nearest to the digits. Fifteen digits and a small power of ten are both exact, so that their
/// quotient is rounded once; the others go through their text.
double ToDouble(const DecimalNumber& decimal) {
    const int decimals = -decimal.last_exponent;
    double value = 0.0;
    if (decimals >= 0 && decimals < static_cast<int>(std::size(kExactPowers))) {
        value = static_cast<double>(decimal.digits) / kExactPowers[decimals];
    } else {
        const std::string text = std::to_string(decimal.digits) + "e" + std::to_string(decimal.last_exponent);
        std::from_chars(text.data(), text.data() + text.size(), value);
    }
    return decimal.negative ? 0.0 - value : value;
}

std::uint64_t PowerOfTen(int exponent) {
    std::uint64_t power = 1;
    for (int i = 0; i < exponent; ++i) {
        power *= 10;
    }
    return power;
}

/// Drops the last `count` digits, ties to even.
void DropDigits(DecimalNumber& decimal, int count) {
    if (count > kSignificantDigits) {
        decimal.digits = 0;
        return;
    }
    const std::uint64_t unit = PowerOfTen(count);
    const std::uint64_t rest = decimal.digits % unit;
    decimal.digits /= unit;
    decimal.last_exponent += count;
    if (rest * 2 > unit || (rest * 2 == unit && decimal.digits % 2 == 1)) {
        ++decimal.digits;
    }
}

/// 10^(-1 - decimals), the bound under which a number is shown as a clean 0.
double ZeroLimit(int decimals) { return 1.0 / std::pow(10.0, 1.0 + decimals); }

Value NumericNumText(double number, int decimals) {
    if (std::abs(number) < ZeroLimit(decimals)) {
        return 0;
    }
    if (number >= 0.0) {
        return RoundTo(number, decimals);
    }
    return std::string(kMarkupMinus) + RoundedText(-number, decimals);
}

std::string_view SignMark(bool negative, bool plus_sign) {
    return negative ? " ;- " : plus_sign ? " + " : " ";
}

std::string ZeroTerm(bool keep_zero) { return keep_zero ? " 0 " : ""; }

std::string NumericTerm(bool plus_sign, bool keep_zero, double product) {
    if (product == 0.0) {
        return ZeroTerm(keep_zero);
    }
    return std::string(SignMark(product < 0.0, plus_sign)) + NumberToText(std::abs(product));
}

std::string SymbolicTerm(bool plus_sign, double coef, std::string_view symbol) {
    if (symbol.front() == '-') {
        coef = -coef;
        symbol.remove_prefix(1);
    }
    std::string text(SignMark(coef < 0.0, plus_sign));
    if (std::abs(coef) != 1.0) {
        text += NumberToText(std::abs(coef)) + " ";
    }
    return text.append(symbol);
}

}  // namespace

std::string NumberToText(double number) {
    if (number == 0.0) {
        return "0";
    }
    char buffer[kNumberBuffer];
    if (std::abs(number) < kFirstWithoutDecimals && number == std::trunc(number)) {
        char* end = std::to_chars(buffer, buffer + kNumberBuffer, static_cast<long long>(number)).ptr;
        return std::string(buffer, end);
    }
    char* end = std::to_chars(buffer, buffer + kNumberBuffer, numeric::Finite(number),
                              std::chars_format::general, kSignificantDigits)
                    .ptr;
    std::replace(buffer, end, 'e', 'E');
    return std::string(buffer, end);
}

double ToNumber(std::string_view text) {
    const bool general = text.find('E') != std::string_view::npos;
    if (!general && !text.empty() && IsPlainNumber(text)) {
        const NumberShape shape{text.front() == '-', WithoutSign(text), {}};
        return HoldsDigit(text) ? ValueOrOverflow(shape) : 0.0;
    }
    const auto shape = ShapeOf(WithoutBlanks(text));
    if (!general || !shape || text.find_first_of("eDd") != std::string_view::npos) {
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "text that is no number");
    }
    return ValueOrOverflow(*shape);
}

LiteralReading ReadLiteral(std::string_view text) {
    const auto shape = ShapeOf(WithoutBlanks(text));
    if (!shape) {
        return {0.0, numeric::FailureCode::TypeMismatch};
    }
    const std::optional<double> value = ValueOf(*shape);
    return value ? LiteralReading{*value, std::nullopt} : LiteralReading{0.0, numeric::FailureCode::Overflow};
}

double LiteralToNumber(std::string_view text) {
    const LiteralReading reading = ReadLiteral(text);
    if (reading.failure) {
        throw numeric::RuntimeFailure(*reading.failure, "number text");
    }
    return reading.value;
}

bool IsNum(std::string_view text) {
    if (text.empty() || text.find(',') != std::string_view::npos) {
        return false;
    }
    return text.find('E') != std::string_view::npos ? IsGeneralNumber(text) : IsPlainNumber(text);
}

bool IsNum(const Value& value) { return value.HoldsNumber() || IsNum(value.Text()); }

double RoundTo(double number, int decimals) {
    if (number == 0.0) {
        return 0.0;
    }
    if (!(std::abs(numeric::Finite(number)) < kFirstWithoutDecimals)) {
        return number;
    }
    DecimalNumber decimal = ToDecimal(number);
    const long long excess = -static_cast<long long>(decimal.last_exponent) - decimals;
    if (excess > 0) {
        DropDigits(decimal, static_cast<int>(std::min<long long>(excess, kSignificantDigits + 1)));
    }
    return ToDouble(decimal);
}

std::string RoundedText(double number, int decimals) { return NumberToText(RoundTo(number, decimals)); }

Value NumText(const Value& value, int decimals) {
    try {
        if (IsNum(value)) {
            return NumericNumText(value.Number(), decimals);
        }
    } catch (const numeric::RuntimeFailure&) {
        return std::string();
    }
    const std::string text = value.Text();
    if (!text.empty() && text.front() == '-') {
        return std::string(kMarkupMinus) + text.substr(1);
    }
    return value;
}

std::string TermText(bool plus_sign, bool keep_zero, const Value& coef, const Value& term) {
    const std::string symbol = term.Text();
    if (symbol.empty() || !IsNum(coef)) {
        return {};
    }
    try {
        const double factor = coef.Number();
        if (factor == 0.0) {
            return ZeroTerm(keep_zero);
        }
        if (IsNum(term)) {
            return NumericTerm(plus_sign, keep_zero, numeric::CheckedMultiply(factor, term.Number()));
        }
        return SymbolicTerm(plus_sign, factor, symbol);
    } catch (const numeric::RuntimeFailure&) {
        return {};
    }
}

}  // namespace tavrelo::text
