#include "vectors/symbols.h"

#include <array>
#include <cmath>

#include "numeric/compare.h"
#include "numeric/number_text.h"
#include "numeric/utf8.h"
#include "shell/markup.h"

namespace tavrelo::vectors {
namespace {

using numeric::NearEq;

constexpr double kCoefficientTolerance = 1e-8;
constexpr std::string_view kFactorCharacters = "-.0123456789";
constexpr std::array<std::string_view, 2> kAngleFunctions = {"cos", "sen"};
constexpr std::size_t kAngleFunctionLength = 3;

bool BeginsWithSmallF(std::string_view symbol) { return symbol.starts_with('f'); }

double FactorOf(std::string_view text) {
    if (text.empty())
        return 1;
    if (text == "-")
        return -1;
    return numeric::ToNumber(text);
}

std::string WithCapital(std::string_view symbol) {
    if (BeginsWithSmallF(symbol))
        return std::string(symbol);
    std::u32string characters = numeric::ToCodePoints(symbol);
    if (characters.empty())
        return {};
    return numeric::ToUpper(numeric::ToUtf8(characters.front())) +
           numeric::ToUtf8(std::u32string_view(characters).substr(1));
}

// Where the first angle function of a text begins; npos without one.
std::size_t AngleFunctionPosition(std::string_view text) {
    std::size_t position = std::string_view::npos;
    for (std::string_view function : kAngleFunctions)
        position = std::min(position, text.find(function));
    return position;
}

std::string SmallSubscript(const std::string& subscript) {
    return subscript == "X" || subscript == "Y" ? subscript : numeric::ToLower(subscript);
}

std::string PlainSymbolMarkup(std::string_view symbol) {
    const std::string shown = BeginsWithSmallF(symbol) ? std::string(symbol) : numeric::ToUpper(symbol);
    const std::u32string characters = numeric::ToCodePoints(shown);
    const auto at = [&](std::size_t i) { return numeric::ToUtf8(characters[i]); };
    if (characters.size() == 2)
        return at(0) + "!" + SmallSubscript(at(1));
    if (characters.size() == 3)
        return at(0) + "!" + at(1) + "!" + at(2);
    return shown;
}

std::string MarkedSymbol(std::string_view symbol) {
    const std::size_t function = AngleFunctionPosition(symbol);
    if (function == std::string_view::npos)
        return PlainSymbolMarkup(symbol);
    const std::string_view argument = symbol.substr(function + kAngleFunctionLength);
    return PlainSymbolMarkup(numeric::Trim(symbol.substr(0, function))) + " " +
           std::string(symbol.substr(function, kAngleFunctionLength)) + " " +
           PlainSymbolMarkup(numeric::Trim(argument));
}

}  // namespace

FactoredSymbol SplitFactor(std::string_view text) {
    const std::string trimmed = numeric::Trim(text);
    const std::size_t end = std::min(trimmed.find_first_not_of(kFactorCharacters), trimmed.size());
    return {FactorOf(std::string_view(trimmed).substr(0, end)),
            WithCapital(numeric::Trim(std::string_view(trimmed).substr(end)))};
}

std::string FactorText(double coef, std::string_view symbol, int decimals) {
    if (NearEq(coef, 0, kCoefficientTolerance))
        return "0";
    if (NearEq(coef, 1, kCoefficientTolerance))
        return std::string(symbol);
    if (NearEq(coef, -1, kCoefficientTolerance))
        return "-" + std::string(symbol);
    return numeric::RoundedText(coef, decimals) + " " + std::string(symbol);
}

std::string SymbolMarkup(double factor, std::string_view symbol, int decimals) {
    return FactorText(std::abs(factor), MarkedSymbol(symbol), decimals);
}

std::string SubscriptName(std::string_view symbol) {
    const std::u32string characters = numeric::ToCodePoints(symbol);
    if (characters.size() < 2 || characters.size() > kLongestSymbol)
        return shell::EscapeMarks(symbol);
    std::string name = shell::EscapeMarks(numeric::ToUtf8(characters[0]));
    for (char32_t subscript : std::u32string_view(characters).substr(1))
        name += "!" + shell::EscapeMarks(numeric::ToUpper(numeric::ToUtf8(subscript)));
    return name;
}

bool SameSymbol(std::string_view a, std::string_view b) {
    return BeginsWithSmallF(a) == BeginsWithSmallF(b) && numeric::ToUpper(a) == numeric::ToUpper(b);
}

}  // namespace tavrelo::vectors
