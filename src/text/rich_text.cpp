#include "text/rich_text.h"

namespace tavrelo::text {
namespace {

bool SameLook(const Run& a, const Run& b) {
    return a.font == b.font && a.color == b.color && a.offset == b.offset;
}

}  // namespace

RichText::RichText(std::vector<Run> runs) {
    for (Run& run : runs)
        Append(std::move(run));
}

void RichText::Append(Run run) {
    if (run.text.empty())
        return;
    if (!m_runs.empty() && SameLook(m_runs.back(), run))
        m_runs.back().text += run.text;
    else
        m_runs.push_back(std::move(run));
}

void RichText::Append(const RichText& text) {
    for (const Run& run : text.m_runs)
        Append(run);
}

std::string RichText::PlainText() const {
    std::string text;
    for (const Run& run : m_runs)
        text += run.text;
    return text;
}

RichText PlainRichText(std::string_view text, std::string_view font_name, double size) {
    Run run{std::string(text), {}, kBlack, 0};
    run.font.name = font_name;
    run.font.size = size;
    return RichText({std::move(run)});
}

}  // namespace tavrelo::text
