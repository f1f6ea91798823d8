#include "window/surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/spoken.h"

namespace tavrelo::window {
namespace {

/// True when the middle of a text lies in a filled box.
bool Covers(const BoxOp& box, const TextOp& text) {
    if (!box.filled || text.runs.empty())
        return false;
    const text::PlacedRun& last = text.runs.back();
    const double width = last.dx + text::TextWidth(last.text, last.font);
    const double x = text.x + width / 2;
    const double y = text.y + text::TextHeight(text.runs.front().font) / 2;
    const auto [left, right] = std::minmax(box.x1, box.x2);
    const auto [top, bottom] = std::minmax(box.y1, box.y2);
    return x >= left && x <= right && y >= top && y <= bottom;
}

}  // namespace

std::string TextOp::PlainText() const {
    std::string text;
    for (const text::PlacedRun& run : runs)
        text += run.text;
    return text;
}

void Surface::Cls() {
    Draw(ClearOp{BackColor});
    CurrentX = 0;
    CurrentY = 0;
}

void Surface::Line(double x1, double y1, double x2, double y2, text::Color color) {
    Draw(LineOp{x1, y1, x2, y2, color, DrawWidth});
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::Box(double x1, double y1, double x2, double y2, text::Color color, bool filled) {
    Draw(BoxOp{x1, y1, x2, y2, color, filled, DrawWidth});
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::Circle(double x, double y, double radius, text::Color color) {
    if (Filled)
        Draw(CircleOp{x, y, radius, FillColor, true, DrawWidth});
    else
        Draw(CircleOp{x, y, radius, color, false, DrawWidth});
}

void Surface::Arc(double x, double y, double radius, double start_degrees, double end_degrees,
                  text::Color color) {
    Draw(ArcOp{x, y, radius, start_degrees, end_degrees, color, DrawWidth});
}

void Surface::Polygon(std::vector<Point> points) { Draw(PolygonOp{std::move(points), FillColor}); }

void Surface::Print(std::string_view text) {
    Draw(TextOp{CurrentX, CurrentY, {text::PlacedRun{0, 0, std::string(text), CurrentFont, ForeColor}}});
    CurrentX += TextWidth(text);
}

void Surface::Image(std::string_view name, double source_x, double source_y, double width, double height,
                    double x, double y) {
    Draw(ImageOp{std::string(name), source_x, source_y, width, height, x, y});
}

void Recorder::Draw(DrawOp op) {
    if (std::holds_alternative<ClearOp>(op))
        m_recording = {};
    m_recording.invitation.clear();
    m_recording.operations.push_back(std::move(op));
    Changed();
}

void Recorder::Describe(std::string_view sentences) {
    if (sentences.empty())
        return;
    if (!m_recording.words.empty())
        m_recording.words += ' ';
    m_recording.words += sentences;
    Changed();
}

void Recorder::AddTip(const PictureTip& tip) { m_recording.tips.push_back(tip); }

void Recorder::Invite(std::string_view line) {
    if (m_recording.invitation == line)
        return;
    m_recording.invitation = line;
    Changed();
}

bool Recorder::IsBlank() const {
    const auto is_clear = [](const DrawOp& op) { return std::holds_alternative<ClearOp>(op); };
    return m_recording.invitation.empty() && std::ranges::all_of(m_recording.operations, is_clear);
}

void Recorder::Resize(double width, double height) {
    m_width = width;
    m_height = height;
}

void Recorder::DescribeByTexts() {
    if (!std::exchange(m_recording.is_page, true))
        Changed();
}

std::string Recorder::Words() const {
    if (!m_recording.is_page)
        return m_recording.words;
    std::vector<const TextOp*> texts = VisibleTextOps();
    std::ranges::stable_sort(texts, {}, &TextOp::y);
    std::string words = m_recording.words;
    for (const TextOp* text : texts)
        words += (words.empty() ? "" : "\n") + text::SpokenText(text->runs);
    return words;
}

void Recorder::Restore(Recording recording) {
    m_recording = std::move(recording);
    Changed();
}

std::vector<const TextOp*> Recorder::VisibleTextOps() const {
    const std::vector<DrawOp>& operations = Operations();
    std::vector<const TextOp*> texts;
    for (auto op = operations.begin(); op != operations.end(); ++op) {
        const auto* text = std::get_if<TextOp>(&*op);
        if (!text)
            continue;
        const bool covered = std::any_of(op + 1, operations.end(), [&](const DrawOp& later) {
            const auto* box = std::get_if<BoxOp>(&later);
            return box && Covers(*box, *text);
        });
        if (!covered)
            texts.push_back(text);
    }
    return texts;
}

std::vector<std::string> Recorder::VisibleTexts() const {
    std::vector<std::string> texts;
    for (const TextOp* text : VisibleTextOps())
        texts.push_back(text->PlainText());
    return texts;
}

void Recorder::Changed() const {
    if (OnChange)
        OnChange();
}

void Replay(const std::vector<DrawOp>& operations, Surface& target) {
    for (const DrawOp& op : operations)
        target.Draw(op);
}

}  // namespace tavrelo::window
