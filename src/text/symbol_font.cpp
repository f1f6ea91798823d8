#include <array>
#include <string_view>

#include "text/markup.h"

namespace tavrelo::text {
namespace {

struct NamedSymbol {
    std::u32string_view name;
    unsigned code;  // in the symbol font
};

constexpr NamedSymbol kNamedSymbols[] = {
    {U"meig", 163}, {U"maig", 179}, {U"suma", 229}, {U"punt", 215}, {U"infi", 165}, {U"nabl", 209},
    {U"esca", 183}, {U"fldo", 171}, {U"fliz", 172}, {U"flar", 173}, {U"flde", 174}, {U"flab", 175},
    {U"grad", 176}, {U"mame", 177}, {U"prop", 181}, {U"dife", 185}, {U"iden", 186}, {U"apro", 187},
    {U"divi", 184}, {U"elem", 206}, {U"nele", 207}, {U"impl", 222}, {U"abso", 231}, {U"angu", 208},
    {U"cruz", 180}, {U"reto", 191}, {U"cora", 170},
};

// The classic symbol font: its characters 32 to 126, then 161 to 254.
constexpr std::u32string_view kLowSymbols =
    U" !∀#∃%&∋()∗+,−./0123456789:;<=>?"
    U"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    U"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼";
constexpr unsigned kLowFirst = 32;
constexpr std::u32string_view kHighSymbols =
    U"ϒ′≤⁄∞ƒ♣♦♥♥↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    U"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    U"◊〈®©™∑⎛|⎝⎡⎢⎣⎧⎨⎩⎪ 〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭";
constexpr unsigned kHighFirst = 161;

static_assert(kLowSymbols.size() == 126 - kLowFirst + 1);
static_assert(kHighSymbols.size() == 254 - kHighFirst + 1);

constexpr char32_t kNoSymbol = 0;

/// The sign of a code of the symbol font.
char32_t SignOf(unsigned code) {
    if (code >= kLowFirst && code - kLowFirst < kLowSymbols.size())
        return kLowSymbols[code - kLowFirst];
    if (code >= kHighFirst && code - kHighFirst < kHighSymbols.size())
        return kHighSymbols[code - kHighFirst];
    return kNoSymbol;
}

constexpr bool IsDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

}  // namespace

char32_t SymbolChar(std::u32string_view name) {
    constexpr std::size_t kNameLength = 4;
    for (const NamedSymbol& symbol : kNamedSymbols)
        if (symbol.name == name)
            return SignOf(symbol.code);
    if (name.size() != kNameLength)
        return kNoSymbol;
    unsigned code = 0;
    for (const char32_t character : name) {
        if (!IsDigit(character))
            return kNoSymbol;
        code = code * 10 + static_cast<unsigned>(character - U'0');
    }
    return SignOf(code);
}

char32_t SymbolFontCharacter(char32_t character) {
    const char32_t sign = SignOf(static_cast<unsigned>(character));
    return sign == kNoSymbol ? character : sign;
}

}  // namespace tavrelo::text
