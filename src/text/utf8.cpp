#include "text/utf8.h"

#include <algorithm>
#include <optional>

namespace tavrelo::text {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kLastSurrogate = 0xDFFF;
constexpr char32_t kFirstAboveAscii = 0x80;

/// What a leading byte says of its sequence: payload bits, bytes that follow, and the least code point that
/// needs so many bytes (a smaller one is an overlong form, hence invalid).
struct Lead {
    char32_t bits;
    std::size_t followers;
    char32_t least;
};

Lead LeadOf(unsigned char byte) {
    if ((byte & 0xE0) == 0xC0) {
        return {static_cast<char32_t>(byte & 0x1F), 1, kFirstAboveAscii};
    }
    if ((byte & 0xF0) == 0xE0) {
        return {static_cast<char32_t>(byte & 0x0F), 2, 0x800};
    }
    if ((byte & 0xF8) == 0xF0) {
        return {static_cast<char32_t>(byte & 0x07), 3, 0x10000};
    }
    return {0, 0, 0};
}

bool IsScalar(char32_t character) {
    return character <= kLastCodePoint && (character < kFirstSurrogate || character > kLastSurrogate);
}

/// The code point of the sequence at `position`; nothing when a follower is missing or the form is invalid.
std::optional<char32_t> DecodeSequence(std::string_view text, std::size_t position, const Lead& lead) {
    if (lead.followers == 0 || lead.followers >= text.size() - position) {
        return std::nullopt;
    }
    char32_t character = lead.bits;
    for (std::size_t i = 1; i <= lead.followers; ++i) {
        const auto byte = static_cast<unsigned char>(text[position + i]);
        if ((byte & 0xC0) != 0x80) {
            return std::nullopt;
        }
        character = (character << 6) | (byte & 0x3F);
    }
    if (character < lead.least || !IsScalar(character)) {
        return std::nullopt;
    }
    return character;
}

void AppendUtf8(std::string& out, char32_t character) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    const auto follower = [character](int shift) { return 0x80 | ((character >> shift) & 0x3F); };
    if (!IsScalar(character)) {
        AppendUtf8(out, kReplacement);
    } else if (character < kFirstAboveAscii) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(follower(0));
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        put(follower(6));
        put(follower(0));
    } else {
        put(0xF0 | (character >> 18));
        put(follower(12));
        put(follower(6));
        put(follower(0));
    }
}

/// The letters beyond A-Z that have a capital in Spanish.
struct LetterPair {
    std::string_view small;
    std::string_view capital;
};
constexpr LetterPair kSpanishLetters[] = {{"á", "Á"}, {"é", "É"}, {"í", "Í"}, {"ó", "Ó"},
                                          {"ú", "Ú"}, {"ü", "Ü"}, {"ñ", "Ñ"}};
constexpr std::size_t kSpanishLetterBytes = 2;

char ToUpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char ToLowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Every letter through `ascii` or, for the Spanish ones, from one member of its pair to the other.
template <typename Ascii>
std::string MapLetters(std::string_view text, Ascii ascii, std::string_view LetterPair::*from,
                       std::string_view LetterPair::*to) {
    std::string out(text);
    for (std::size_t i = 0; i < out.size(); ++i) {
        if (static_cast<unsigned char>(text[i]) < kFirstAboveAscii) {
            out[i] = ascii(text[i]);
            continue;
        }
        for (const LetterPair& pair : kSpanishLetters) {
            if (text.substr(i, kSpanishLetterBytes) == pair.*from) {
                out.replace(i, kSpanishLetterBytes, pair.*to);
                ++i;
                break;
            }
        }
    }
    return out;
}

}  // namespace

char32_t NextCodePoint(std::string_view text, std::size_t& position) {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte < kFirstAboveAscii) {
        ++position;
        return byte;
    }
    const Lead lead = LeadOf(byte);
    const std::optional<char32_t> character = DecodeSequence(text, position, lead);
    position += character ? lead.followers + 1 : 1;
    return character.value_or(kReplacement);
}

std::u32string ToCodePoints(std::string_view text) {
    std::u32string out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        out.push_back(NextCodePoint(text, position));
    }
    return out;
}

std::string ToUtf8(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char32_t character : text) {
        AppendUtf8(out, character);
    }
    return out;
}

std::string ToUtf8(char32_t character) {
    std::string out;
    AppendUtf8(out, character);
    return out;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) {
        NextCodePoint(text, position);
    }
    return count;
}

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string ToUpper(std::string_view text) {
    return MapLetters(text, ToUpperAscii, &LetterPair::small, &LetterPair::capital);
}

std::string ToLower(std::string_view text) {
    return MapLetters(text, ToLowerAscii, &LetterPair::capital, &LetterPair::small);
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return ToUpperAscii(x) == ToUpperAscii(y); });
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) {
        return std::string(text);
    }
    std::string out;
    out.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, start)) {
        out.append(text, start, hit - start).append(to);
        start = hit + from.size();
    }
    return out.append(text, start);
}

}  // namespace tavrelo::text
