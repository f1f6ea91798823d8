#include "window/pagination.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::window {
namespace {

struct Glyph {
    char32_t character;
    double width;   // twips
    double height;  // twips
};

std::vector<Glyph> GlyphsOf(const text::RichText& text) {
    std::vector<Glyph> glyphs;
    for (const text::Run& run : text.Runs()) {
        const double height = text::TextHeight(run.font) * kTwipsPerPixel;
        for (const char32_t character : text::ToCodePoints(run.text))
            glyphs.push_back(
                {character, text::TextWidth(text::ToUtf8(character), run.font) * kTwipsPerPixel, height});
    }
    return glyphs;
}

struct PrintedLine {
    std::string text;
    double height;
};

/// Cuts lines off the front of the glyphs: at a line end, else behind the last blank that fits, else where it
/// is full.
class LineBreaker {
  public:
    LineBreaker(std::vector<Glyph> glyphs, double column) : m_glyphs(std::move(glyphs)), m_column(column) {}

    bool AtEnd() const { return m_next == m_glyphs.size(); }

    PrintedLine NextLine() {
        const std::size_t end = EndOfLine();
        std::u32string characters;
        double height = 0;
        for (std::size_t k = m_next; k < end; ++k) {
            height = std::max(height, m_glyphs[k].height);
            if (m_glyphs[k].character >= U' ')
                characters += m_glyphs[k].character;
        }
        m_next = end;
        return {text::ToUtf8(characters), height};
    }

  private:
    std::size_t EndOfLine() const {
        double width = 0;
        std::size_t behind_blank = 0;
        for (std::size_t k = m_next; k < m_glyphs.size(); ++k) {
            if (m_glyphs[k].character == U'\n')
                return k + 1;
            width += m_glyphs[k].width;
            if (m_glyphs[k].character == U' ')
                behind_blank = k + 1;
            else if (width > m_column && k > m_next)
                return behind_blank > m_next ? behind_blank : k;
        }
        return m_glyphs.size();
    }

    std::vector<Glyph> m_glyphs;
    double m_column;
    std::size_t m_next = 0;
};

}  // namespace

std::vector<PrintedPage> Paginate(const text::RichText& text, const Paper& paper,
                                  const PageMargins& margins) {
    const double page_height = paper.height - margins.top - margins.bottom;
    LineBreaker lines(GlyphsOf(text), paper.width - margins.left - margins.right);
    std::vector<PrintedPage> pages;
    double used = 0;
    while (!lines.AtEnd()) {
        PrintedLine line = lines.NextLine();
        const bool full = used + line.height > page_height;
        if (pages.empty() || (full && !pages.back().empty())) {
            pages.emplace_back();
            used = 0;
        }
        pages.back().push_back(std::move(line.text));
        used += line.height;
    }
    return pages;
}

}  // namespace tavrelo::window
