#pragma once

#include <string>
#include <vector>

#include "text/font.h"

namespace tavrelo::text {

/// A stretch of rich text of one look. `offset` raises (above 0) or lowers it, in twips in rich boxes.
struct Run {
    std::string text;  // UTF-8; line ends as "\r\n"
    Font font;
    Color color = kBlack;
    int offset = 0;
};

/// Rich text; equal neighbours are joined by Append.
class RichText {
  public:
    RichText() = default;
    explicit RichText(std::vector<Run> runs);

    const std::vector<Run>& Runs() const { return m_runs; }
    void Append(Run run);
    void Append(const RichText& text);
    bool IsEmpty() const { return m_runs.empty(); }

    /// The characters alone, line ends as "\r\n".
    std::string PlainText() const;

  private:
    std::vector<Run> m_runs;
};

/// The text in one look without any mark interpreted.
RichText PlainRichText(std::string_view text, std::string_view font_name, double size);

}  // namespace tavrelo::text
