#include "text/markup.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "text/utf8.h"

namespace tavrelo::text {
namespace {

constexpr char32_t kEndMark = U'¬';
constexpr std::u32string_view kMarks = U"\\/#!¡;$¬";
constexpr std::size_t kSymbolNameLength = 4;
constexpr std::size_t kTagLength = 4;
constexpr int kSubscriptOffset = -45;   // twips
constexpr int kSuperscriptOffset = 60;  // twips
constexpr double kDigitScriptSize = 7;
constexpr double kLetterScriptSize = 8;

constexpr std::array<Color, 16> kColors = {
    Rgb(0, 0, 0),     Rgb(255, 0, 0),   Rgb(0, 255, 0),   Rgb(0, 0, 255),
    Rgb(128, 0, 0),   Rgb(0, 128, 0),   Rgb(0, 0, 128),   Rgb(0, 255, 255),
    Rgb(255, 0, 255), Rgb(255, 255, 0), Rgb(0, 128, 128), Rgb(128, 0, 128),
    Rgb(128, 128, 0), Rgb(255, 128, 0), Rgb(128, 64, 0),  Rgb(128, 64, 0),
};

struct Style {
    bool bold = false;
    bool underline = false;
    bool italic = false;
    std::size_t color = 0;
};

struct NamedStyle {
    char32_t code;
    Style style;
};

constexpr NamedStyle kNamedStyles[] = {
    {U't', {true, false, false, 5}},  {U'g', {false, false, true, 3}}, {U'c', {true, false, false, 4}},
    {U'o', {false, false, false, 1}}, {U'p', {true, true, false, 13}}, {U'n', {false, true, false, 11}},
    {U'b', {true, false, false, 0}},  {U'i', {false, false, true, 0}}, {U'u', {false, true, false, 0}},
};

constexpr bool IsDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

std::optional<std::size_t> HexDigit(char32_t character) {
    if (IsDigit(character))
        return character - U'0';
    if (character >= U'A' && character <= U'F')
        return character - U'A' + 10;
    return std::nullopt;
}

std::optional<Style> StyleOf(char32_t code) {
    if (const auto color = HexDigit(code))
        return Style{false, false, false, *color};
    for (const NamedStyle& named : kNamedStyles)
        if (named.code == code)
            return named.style;
    return std::nullopt;
}

/// A tag BUIC: three flags and a colour digit.
Style StyleOfTag(std::u32string_view tag) {
    const auto is_on = [&](std::size_t index) { return index < tag.size() && tag[index] == U'1'; };
    const auto color = tag.size() == kTagLength ? HexDigit(tag.back()) : std::nullopt;
    return {is_on(0), is_on(1), is_on(2), color.value_or(0)};
}

struct StyledCharacter {
    char32_t character;
    Font font;
    Color color = kBlack;
    int offset = 0;
};

/// The single pass over the characters in which marks vanish and their neighbours change their look.
class Rendering {
  public:
    Rendering(std::string_view font_name, double font_size, std::string_view text) {
        m_base.name = font_name;
        m_base.size = font_size;
        const std::u32string characters = text::ToCodePoints(text);
        m_characters.reserve(characters.size() + 1);
        for (const char32_t character : characters)
            m_characters.push_back({character, m_base});
        m_characters.push_back({kEndMark, m_base});
    }

    RichText Run() {
        for (int round = 0; round < kMarkLimit && !m_done; ++round)
            InterpretNextMark();
        return Joined();
    }

  private:
    void InterpretNextMark() {
        while (m_read < m_characters.size() && !IsMark(m_characters[m_read].character))
            Keep();
        if (m_read == m_characters.size()) {
            m_done = true;
            return;
        }
        const char32_t mark = m_characters[m_read].character;
        ++m_read;
        if (mark == kEndMark)
            m_done = true;
        else if (m_read < m_characters.size() && m_characters[m_read].character == mark)
            Escape();
        else
            Interpret(mark);
    }

    void Interpret(char32_t mark) {
        switch (mark) {
            case U'/':
                ApplyNamedStyle();
                break;
            case U'\\':
                ApplyTag();
                break;
            case U'!':
                SetScript(kSubscriptOffset);
                break;
            case U'¡':
                SetScript(kSuperscriptOffset);
                break;
            case U';':
                SetGreek();
                break;
            case U'$':
                if (m_read < m_characters.size())
                    m_characters[m_read].font.bold = true;
                break;
            default:
                InsertSymbol();
        }
    }

    static bool IsMark(char32_t character) { return kMarks.find(character) != std::u32string_view::npos; }

    /// Moves the next character to the rendered ones.
    void Keep() { m_rendered.push_back(m_characters[m_read++]); }

    /// One mark of the pair stays, and the character behind it is skipped by the scan.
    void Escape() {
        Keep();
        if (m_read < m_characters.size())
            Keep();
    }

    void ApplyNamedStyle() {
        if (m_read < m_characters.size())
            m_style = StyleOf(m_characters[m_read++].character).value_or(m_style);
        ApplyStyleUpTo(U'/', m_style);
    }

    void ApplyTag() {
        std::u32string tag;
        while (tag.size() < kTagLength && m_read < m_characters.size())
            tag += m_characters[m_read++].character;
        m_style = StyleOfTag(tag);
        ApplyStyleUpTo(U'\\', m_style);
    }

    /// The text up to the closing mark takes the style; without one the rest does, and the rendering ends.
    void ApplyStyleUpTo(char32_t closing, const Style& style) {
        while (m_read < m_characters.size() && m_characters[m_read].character != closing) {
            StyledCharacter& styled = m_characters[m_read];
            styled.font.bold = style.bold;
            styled.font.underline = style.underline;
            styled.font.italic = style.italic;
            styled.color = kColors[style.color];
            Keep();
        }
        if (m_read < m_characters.size()) {
            ++m_read;
            return;
        }
        if (!m_rendered.empty() && m_rendered.back().character == kEndMark)
            m_rendered.pop_back();
        m_done = true;
    }

    void SetScript(int offset) {
        if (m_read == m_characters.size())
            return;
        StyledCharacter& script = m_characters[m_read];
        script.offset = offset;
        if (IsDigit(script.character)) {
            script.font.name = kTextFont;
            script.font.size = kDigitScriptSize;
        } else {
            script.font.size = kLetterScriptSize;
        }
    }

    void SetGreek() {
        if (m_read == m_characters.size())
            return;
        StyledCharacter& greek = m_characters[m_read];
        greek.character = SymbolFontCharacter(greek.character);
        greek.font.name = kSymbolFont;
        Keep();
    }

    void InsertSymbol() {
        std::u32string name;
        StyledCharacter sign{0, m_base};
        if (m_read < m_characters.size())
            sign = m_characters[m_read];
        while (name.size() < kSymbolNameLength && m_read < m_characters.size())
            name += m_characters[m_read++].character;
        sign.character = SymbolChar(name);
        sign.font.name = kSymbolFont;
        m_rendered.push_back(sign);
    }

    RichText Joined() {
        m_rendered.insert(m_rendered.end(), m_characters.begin() + static_cast<std::ptrdiff_t>(m_read),
                          m_characters.end());
        RichText text;
        for (const StyledCharacter& styled : m_rendered)
            text.Append({text::ToUtf8(styled.character), styled.font, styled.color, styled.offset});
        return text;
    }

    Font m_base;
    Style m_style;
    std::vector<StyledCharacter> m_characters;
    std::vector<StyledCharacter> m_rendered;
    std::size_t m_read = 0;
    bool m_done = false;
};

}  // namespace

RichText RenderMarkup(std::string_view font_name, double font_size, std::string_view text) {
    return Rendering(font_name, font_size, text).Run();
}

std::size_t CountMarks(std::string_view text) {
    const std::u32string characters = text::ToCodePoints(text);
    return static_cast<std::size_t>(std::ranges::count_if(
        characters, [](char32_t character) { return kMarks.find(character) != std::u32string_view::npos; }));
}

std::string EscapeMarks(std::string_view text) {
    std::u32string escaped;
    bool skipped = false;  // the scan passes over the character behind an escape
    for (const char32_t character : text::ToCodePoints(text)) {
        if (character == kEndMark)
            continue;
        const bool is_mark = kMarks.find(character) != std::u32string_view::npos;
        const bool doubled = is_mark && !skipped;
        escaped.append(doubled ? 2 : 1, character);
        skipped = doubled;
    }
    return text::ToUtf8(escaped);
}

}  // namespace tavrelo::text
