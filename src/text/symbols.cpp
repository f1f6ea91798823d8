#include "text/symbols.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "numeric/compare.h"
#include "text/markup.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::text {
namespace {

using numeric::NearEq;

constexpr double kCoefficientTolerance = 1e-8;
constexpr std::string_view kFactorCharacters = "-.0123456789";

bool BeginsWithSmallF(std::string_view symbol) { return symbol.starts_with('f'); }

struct LetterRange {
    char32_t first, last;
};
constexpr std::array<LetterRange, 6> kLetters = {{
    {U'A', U'Z'},
    {U'a', U'z'},
    {0xC0, 0xD6},    // Latin with accents, up to the sign of multiplication
    {0xD8, 0xF6},    // and up to the sign of division
    {0xF8, 0x24F},   // and the rest
    {0x386, 0x3FF},  // Greek
}};

bool IsLetter(char32_t character) {
    return std::ranges::any_of(kLetters, [&](const LetterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

double FactorOf(std::string_view text) {
    if (text.empty())
        return 1;
    if (text == "-")
        return -1;
    return text::ToNumber(text);
}

std::string WithCapital(std::string_view symbol) {
    if (BeginsWithSmallF(symbol))
        return std::string(symbol);
    std::u32string characters = text::ToCodePoints(symbol);
    if (characters.empty())
        return {};
    return text::ToUpper(text::ToUtf8(characters.front())) +
           text::ToUtf8(std::u32string_view(characters).substr(1));
}

std::string SmallSubscript(const std::string& subscript) {
    return subscript == "X" || subscript == "Y" ? subscript : text::ToLower(subscript);
}

}  // namespace

FactoredSymbol SplitFactor(std::string_view text) {
    const std::string trimmed = text::Trim(text);
    const std::size_t end = std::min(trimmed.find_first_not_of(kFactorCharacters), trimmed.size());
    return {FactorOf(std::string_view(trimmed).substr(0, end)),
            WithCapital(text::Trim(std::string_view(trimmed).substr(end)))};
}

bool IsSymbolName(std::string_view text) {
    std::size_t position = 0;
    return !text.empty() && IsLetter(text::NextCodePoint(text, position)) &&
           text.find_first_of(" *") == std::string_view::npos;
}

std::string FactorText(double coef, std::string_view symbol, int decimals) {
    if (NearEq(coef, 0, kCoefficientTolerance))
        return "0";
    if (NearEq(coef, 1, kCoefficientTolerance))
        return std::string(symbol);
    if (NearEq(coef, -1, kCoefficientTolerance))
        return "-" + std::string(symbol);
    return text::RoundedText(coef, decimals) + " " + std::string(symbol);
}

std::string SymbolMarkup(std::string_view symbol) {
    std::string shown = BeginsWithSmallF(symbol) ? std::string(symbol) : text::ToUpper(symbol);
    const std::u32string characters = text::ToCodePoints(shown);
    const auto at = [&](std::size_t i) { return text::ToUtf8(characters[i]); };
    if (characters.size() == 2)
        return at(0) + "!" + SmallSubscript(at(1));
    if (characters.size() == 3)
        return at(0) + "!" + at(1) + "!" + at(2);
    return shown;
}

std::string SymbolMarkup(double factor, std::string_view symbol, int decimals) {
    return FactorText(std::abs(factor), SymbolMarkup(symbol), decimals);
}

std::string SubscriptName(std::string_view symbol) {
    const std::u32string characters = text::ToCodePoints(symbol);
    if (characters.size() < 2 || characters.size() > kLongestSymbol)
        return text::EscapeMarks(symbol);
    std::string name = text::EscapeMarks(text::ToUtf8(characters[0]));
    for (char32_t subscript : std::u32string_view(characters).substr(1))
        name += "!" + text::EscapeMarks(text::ToUpper(text::ToUtf8(subscript)));
    return name;
}

bool SameSymbol(std::string_view a, std::string_view b) {
    return BeginsWithSmallF(a) == BeginsWithSmallF(b) && text::ToUpper(a) == text::ToUpper(b);
}

}  // namespace tavrelo::text
