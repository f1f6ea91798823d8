#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrelo::text {

/// Characters of the name of an unknown magnitude or component: a letter and at most two subscripts.
inline constexpr std::size_t kLongestSymbol = 3;

/// A symbol with the number in front of it: "2F1" is 2 and "F1", "-T" is -1 and "T".
struct FactoredSymbol {
    double factor;
    std::string symbol;
};
/// Splits a text into its leading factor and its symbol, whose first letter becomes a capital unless it is an
/// "f" (a friction force). Fails with TypeMismatch when what stands in front is no number, like "--".
FactoredSymbol SplitFactor(std::string_view text);

/// Whether a text can name an unknown: it begins with a letter (of Latin or Greek) and holds neither a blank
/// nor a "*", which would be a product. Its length is the reader's to judge.
bool IsSymbolName(std::string_view text);

/// A component as text: "0", "F", "-F" or the coefficient rounded to `decimals`, a blank and the symbol.
/// Coefficients within 1e-8 of 0, 1 and -1 count as these.
std::string FactorText(double coef, std::string_view symbol, int decimals);

/// The symbol in picture markup ("F12" is "F!1!2"), in capitals but for a leading "f" and a single subscript.
std::string SymbolMarkup(std::string_view symbol);
/// The same, a factor other than 1 in front by its absolute value.
std::string SymbolMarkup(double factor, std::string_view symbol, int decimals);

/// A symbol of two or three characters in rich-text markup, its subscripts in capitals; any other stays.
/// Marks that the name itself holds are escaped.
std::string SubscriptName(std::string_view symbol);

/// Whether two names are one unknown: case does not count, but a leading "f" is never an "F".
bool SameSymbol(std::string_view a, std::string_view b);

}  // namespace tavrelo::text
