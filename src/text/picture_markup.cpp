#include "text/picture_markup.h"

#include <algorithm>

#include "text/markup.h"
#include "text/utf8.h"

namespace tavrelo::text {
namespace {

constexpr double kSmallSize = 8;  // sizes in points at which the heights below differ
constexpr double kLargeSize = 12;
constexpr double kScriptSize = 7;
constexpr std::size_t kSymbolNameLength = 4;

double SubscriptDrop(double size) { return size == kLargeSize ? 6 : 5; }

double SuperscriptRise(double size) { return size == kLargeSize ? 1 : 2; }

double GreekRise(double size) { return size == kSmallSize || size == kLargeSize ? 0 : 1; }

/// Walks the characters once and places a run for each change of look; the pen advances by each run's width.
class Layout {
  public:
    Layout(std::string_view text, const Font& font, Color color)
        : m_text(text::ToCodePoints(text)), m_font(font), m_color(color) {}

    std::vector<PlacedRun> Run() {
        while (m_read < m_text.size())
            PlaceNext();
        return std::move(m_runs);
    }
    double Advance() const { return m_x; }

  private:
    void PlaceNext() {
        const char32_t mark = Take();
        switch (mark) {
            case U';':
                PlaceSymbol(SymbolFontCharacter(Take()));
                break;
            case U'!':
                Place(Take(), Script(m_font.size <= kSmallSize ? kScriptSize : kSmallSize),
                      SubscriptDrop(m_font.size));
                break;
            case U'¡':
                Place(Take(), Script(kScriptSize), -SuperscriptRise(m_font.size));
                break;
            case U'$':
                Place(Take(), Bold(), 0);
                break;
            case U'_':
                Place(Take(), Italic(), 0);
                break;
            case U'#':
                PlaceSymbol(SymbolChar(TakeName()));
                break;
            default:
                Place(mark, m_font, 0);
        }
    }

    /// The next character, or 0 behind the end.
    char32_t Take() { return m_read < m_text.size() ? m_text[m_read++] : 0; }

    std::u32string TakeName() {
        const std::size_t start = m_read;
        m_read = std::min(m_read + kSymbolNameLength, m_text.size());
        return m_text.substr(start, m_read - start);
    }

    Font Script(double size) const {
        Font font = m_font;
        font.size = size;
        return font;
    }
    Font Bold() const {
        Font font = m_font;
        font.bold = true;
        return font;
    }
    Font Italic() const {
        Font font = m_font;
        font.italic = true;
        return font;
    }

    void PlaceSymbol(char32_t sign) {
        Font font = m_font;
        font.name = kSymbolFont;
        Place(sign, font, -GreekRise(m_font.size));
    }

    void Place(char32_t character, const Font& font, double dy) {
        if (character == 0)
            return;
        const std::string text = text::ToUtf8(character);
        if (!m_runs.empty() && m_runs.back().font == font && m_runs.back().dy == dy)
            m_runs.back().text += text;
        else
            m_runs.push_back({m_x, dy, text, font, m_color});
        m_x += TextWidth(text, font);
    }

    std::u32string m_text;
    Font m_font;
    Color m_color;
    std::size_t m_read = 0;
    double m_x = 0;
    std::vector<PlacedRun> m_runs;
};

}  // namespace

std::vector<PlacedRun> LayOutMarkup(std::string_view text, const Font& font, Color color, double* advance) {
    Layout layout(text, font, color);
    std::vector<PlacedRun> runs = layout.Run();
    if (advance)
        *advance = layout.Advance();
    return runs;
}

double MarkupWidth(std::string_view text, const Font& font) {
    double advance = 0;
    LayOutMarkup(text, font, kBlack, &advance);
    return advance;
}

}  // namespace tavrelo::text
