#include "text/spoken_tokens.h"

#include <algorithm>
#include <iterator>

#include "text/utf8.h"

namespace tavrelo::text {
namespace {

constexpr bool IsDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

constexpr bool IsLatin(char32_t character) {
    return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z') ||
           (character >= 0xC0 && character <= 0x24F && character != U'×' && character != U'÷');
}

constexpr bool IsGreek(char32_t character) { return character >= 0x391 && character <= 0x3D6; }

TokenKind KindOf(char32_t character) {
    if (IsDigit(character))
        return TokenKind::Number;
    if (IsLatin(character))
        return TokenKind::Word;
    return IsGreek(character) ? TokenKind::Greek : TokenKind::Sign;
}

/// Cuts one line into tokens.
class LineReader {
  public:
    explicit LineReader(std::span<const LookedCharacter> line) : m_line(line) {}

    std::vector<SpokenToken> Run() {
        int blanks = 0;
        while (m_read < m_line.size()) {
            if (At(m_read) == U' ' || At(m_read) == U'\t') {
                ++blanks;
                ++m_read;
                continue;
            }
            const bool joins = blanks == 0 && !m_tokens.empty();
            if (!joins || !(TakeScript() || TakePrime()))
                TakeToken(blanks);
            blanks = 0;
        }
        return std::move(m_tokens);
    }

  private:
    char32_t At(std::size_t place) const { return place < m_line.size() ? m_line[place].character : 0; }

    bool IsBelow(std::size_t place) const {
        return place < m_line.size() && m_line[place].script == Script::Below;
    }

    /// A comma between two subscripts belongs to them.
    bool TakeScript() {
        SpokenToken& token = m_tokens.back();
        const LookedCharacter& sign = m_line[m_read];
        const bool joins = sign.character == U',' && !token.below.empty() && IsBelow(m_read + 1);
        if (sign.script == Script::None && !joins)
            return false;
        (sign.script == Script::Above ? token.above : token.below) += sign.character;
        ++m_read;
        return true;
    }

    bool TakePrime() {
        SpokenToken& token = m_tokens.back();
        const bool is_prime = At(m_read) == U'\'' && (token.IsLetter() || token.kind == TokenKind::Greek) &&
                              !(m_read + 1 < m_line.size() && IsLatin(At(m_read + 1)) &&
                                m_line[m_read + 1].script == Script::None);
        if (!is_prime)
            return false;
        ++token.primes;
        ++m_read;
        return true;
    }

    void TakeToken(int blanks) {
        const std::size_t start = m_read;
        SpokenToken token;
        token.kind = KindOf(At(start));
        token.blanks = blanks;
        ++m_read;
        if (token.kind == TokenKind::Number)
            ReadNumber();
        if (token.kind == TokenKind::Word)
            while (m_read < m_line.size() && GoesOnWord(start))
                ++m_read;
        for (std::size_t k = start; k < m_read; ++k)
            token.text += At(k);
        token.is_vector = IsVector(start);
        m_tokens.push_back(std::move(token));
    }

    bool IsPlainDigit(std::size_t place) const {
        return IsDigit(At(place)) && m_line[place].script == Script::None;
    }

    void ReadDigits() {
        while (IsPlainDigit(m_read))
            ++m_read;
    }

    void ReadNumber() {
        ReadDigits();
        if (At(m_read) == U'.' && IsPlainDigit(m_read + 1)) {
            ++m_read;
            ReadDigits();
        }
        const bool has_power = At(m_read) == U'E' && (At(m_read + 1) == U'+' || At(m_read + 1) == U'-') &&
                               IsPlainDigit(m_read + 2);
        if (has_power) {
            m_read += 2;
            ReadDigits();
        }
    }

    /// A change between bold and plain parts a vector from what stands beside it.
    bool GoesOnWord(std::size_t start) const {
        const LookedCharacter& next = m_line[m_read];
        return IsLatin(next.character) && next.script == Script::None && next.bold == m_line[start].bold;
    }

    /// A bold letter alone in a line that is not bold altogether.
    bool IsVector(std::size_t start) const {
        if (!m_line[start].bold || m_read != start + 1 || !IsLatin(At(start)))
            return false;
        return std::ranges::any_of(m_line,
                                   [](const LookedCharacter& each) {
                                       return !each.bold && each.character != U' ' &&
                                              each.script == Script::None;
                                   }) ||
               m_line.size() == 1;
    }

    std::span<const LookedCharacter> m_line;
    std::size_t m_read = 0;
    std::vector<SpokenToken> m_tokens;
};

/// A character that is raised of its own, as the one of its row.
struct RaisedCharacter {
    char32_t raised, plain;
};
constexpr RaisedCharacter kRaised[] = {{U'²', U'2'}, {U'³', U'3'}, {U'¹', U'1'},
                                       {U'⁴', U'4'}, {U'⁻', U'-'}, {U'ⁿ', U'n'}};

LookedCharacter Looked(char32_t character, Script script, bool bold) {
    const auto* raised = std::ranges::find(kRaised, character, &RaisedCharacter::raised);
    if (raised != std::end(kRaised))
        return {raised->plain, Script::Above, bold};
    return {character, script, bold};
}

}  // namespace

std::vector<LookedCharacter> LookedCharacters(const RichText& text) {
    std::vector<LookedCharacter> characters;
    for (const Run& run : text.Runs()) {
        const Script script = run.offset < 0 ? Script::Below : run.offset > 0 ? Script::Above : Script::None;
        for (const char32_t character : ToCodePoints(run.text))
            characters.push_back(Looked(character, script, run.font.bold));
    }
    return characters;
}

std::vector<LookedCharacter> LookedCharacters(std::span<const PlacedRun> runs) {
    std::vector<LookedCharacter> characters;
    for (const PlacedRun& run : runs) {
        // Signs of the symbol font are moved up a little to stand on the line.
        const bool is_script = run.font.name != kSymbolFont;
        const Script script = is_script && run.dy > 0   ? Script::Below
                              : is_script && run.dy < 0 ? Script::Above
                                                        : Script::None;
        for (const char32_t character : ToCodePoints(run.text))
            characters.push_back(Looked(character, script, run.font.bold));
    }
    return characters;
}

std::vector<std::vector<SpokenToken>> SpokenLines(std::span<const LookedCharacter> characters) {
    std::vector<std::vector<SpokenToken>> lines;
    std::size_t start = 0;
    for (std::size_t end = 0; end <= characters.size(); ++end) {
        if (end < characters.size() && characters[end].character != U'\n')
            continue;
        const bool has_return = end > start && characters[end - 1].character == U'\r';
        lines.push_back(LineReader(characters.subspan(start, end - start - (has_return ? 1 : 0))).Run());
        start = end + 1;
    }
    return lines;
}

}  // namespace tavrelo::text
