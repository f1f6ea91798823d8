#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "numeric/checked.h"
#include "text/value.h"

namespace tavrelo::text {

/// Decimals shown in results when nothing else was chosen.
inline constexpr int kDefaultDecimals = 3;

/// The default text form: at most fifteen significant digits, no trailing zeros, the point whatever the
/// locale; "1.5E+20" when the decimal exponent is below -4 or at least 15. Never "-0". `number` must be
/// finite.
std::string NumberToText(double number);

/// The value of a text that writes a number; locale-independent. Accepts what IsNum accepts ("-." and "+."
/// are 0). Fails with TypeMismatch on any other text and with Overflow past the range of a double.
double ToNumber(std::string_view text);

/// What a text is worth as a number of the formula language: its value, or why it has none (TypeMismatch: it
/// writes no number; Overflow: past the range of a double).
struct LiteralReading {
    double value = 0.0;
    std::optional<numeric::FailureCode> failure;
};

/// A number as the formula language writes it: optional sign, digits with at most one point, then maybe E, e,
/// D or d with an optional sign and digits; blanks around allowed. So "1e5" and "1D5" are 100000, which
/// ToNumber refuses.
LiteralReading ReadLiteral(std::string_view text);
/// The value of ReadLiteral, or its failure thrown.
double LiteralToNumber(std::string_view text);

/// True when the text counts as a number of problem data: no comma, sign only in front, one point at most;
/// with a capital E anywhere the general form "-1.5E+20", blanks around allowed.
bool IsNum(std::string_view text);
inline bool IsNum(const std::string& text) { return IsNum(std::string_view(text)); }
inline bool IsNum(const char* text) { return IsNum(std::string_view(text)); }
bool IsNum(const Value& value);

/// Rounds on the fifteen-digit decimal text of the number, ties to even, so 2.675 is 2.68 with two decimals;
/// never -0. From 1E+15 on the number stays.
double RoundTo(double number, int decimals);

/// NumberToText of the rounded number: the bare form of results.
std::string RoundedText(double number, int decimals);

/// A number or symbol in a formula, its minus as the markup ";-". A number not below 0 stays a number;
/// |v| below a tenth of the last decimal is a clean 0. Never fails: a number past the range of a double is
/// the empty text.
Value NumText(const Value& value, int decimals);

/// One signed term, coefficient times factor, of a sum in markup. The first term of a sum carries no plus
/// sign; `keep_zero` shows a zero term as " 0 ". Rounds nothing. Never fails: a coefficient that is no number
/// and a product past the range of a double give the empty text.
std::string TermText(bool plus_sign, bool keep_zero, const Value& coef, const Value& term);

}  // namespace tavrelo::text
