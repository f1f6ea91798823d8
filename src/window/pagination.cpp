#include "window/pagination.h"

#include <algorithm>

#include "text/utf8.h"
#include "window/geometry.h"

namespace tavrelo::window {
namespace {

struct Glyph {
    char32_t character;
    const text::Run* run;
    double width;  // twips
};

std::vector<Glyph> GlyphsOf(const text::RichText& text) {
    std::vector<Glyph> glyphs;
    for (const text::Run& run : text.Runs())
        for (const char32_t character : text::ToCodePoints(run.text))
            glyphs.push_back(
                {character, &run, text::TextWidth(text::ToUtf8(character), run.font) * kTwipsPerPixel});
    return glyphs;
}

/// A line as it is made, glyph by glyph.
class LineBuilder {
  public:
    void Add(const Glyph& glyph) {
        m_height = std::max(m_height, text::TextHeight(glyph.run->font) * kTwipsPerPixel);
        m_line.base_line = std::max(m_line.base_line, text::TextAscent(glyph.run->font) * kTwipsPerPixel);
        if (glyph.character < U' ')
            return;
        if (m_line.runs.empty() || m_run != glyph.run) {
            m_line.runs.push_back({m_width, *glyph.run});
            m_line.runs.back().run.text.clear();
            m_run = glyph.run;
        }
        m_line.runs.back().run.text += text::ToUtf8(glyph.character);
        m_width += glyph.width;
    }

    double Height() const { return m_height; }
    /// The line at that distance from the top of the column.
    PrintedLine At(double top) && {
        m_line.top = top;
        m_line.base_line += top;
        return std::move(m_line);
    }

  private:
    PrintedLine m_line{0, 0, {}};
    const text::Run* m_run = nullptr;
    double m_width = 0;
    double m_height = 0;
};

/// Cuts lines off the front of the glyphs: at a line end, else behind the last blank that fits, else where it
/// is full.
class LineBreaker {
  public:
    LineBreaker(std::vector<Glyph> glyphs, double column) : m_glyphs(std::move(glyphs)), m_column(column) {}

    bool AtEnd() const { return m_next == m_glyphs.size(); }

    LineBuilder NextLine() {
        LineBuilder line;
        for (const std::size_t end = EndOfLine(); m_next < end; ++m_next)
            line.Add(m_glyphs[m_next]);
        return line;
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

std::string PrintedLine::Text() const {
    std::string text;
    for (const PrintedRun& printed : runs)
        text += printed.run.text;
    return text;
}

std::vector<PrintedPage> Paginate(const text::RichText& text, const Paper& paper,
                                  const PageMargins& margins) {
    const double page_height = paper.height - margins.top - margins.bottom;
    LineBreaker lines(GlyphsOf(text), paper.width - margins.left - margins.right);
    std::vector<PrintedPage> pages;
    double used = 0;
    while (!lines.AtEnd()) {
        LineBuilder line = lines.NextLine();
        const double height = line.Height();
        const bool full = used + height > page_height;
        if (pages.empty() || (full && !pages.back().lines.empty())) {
            pages.emplace_back();
            used = 0;
        }
        pages.back().lines.push_back(std::move(line).At(used));
        used += height;
    }
    return pages;
}

}  // namespace tavrelo::window
