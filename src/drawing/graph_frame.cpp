#include "drawing/graph_frame.h"

#include <algorithm>

#include "drawing/draw_engine.h"
#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

constexpr double kInset = 2;       // so that the frame's right and upper sides show
constexpr double kYLabelGap = 20;  // pixels between the frame and the labels of the y extremes
constexpr double kXLabelGap = 5;   // pixels between the frame and the labels of the x extremes
constexpr text::Color kFrameColor = text::Rgb(0x80, 0x80, 0x80);

}  // namespace

GraphScale::GraphScale(std::span<const double> values, double first_pixel, double last_pixel)
    : m_low(*std::ranges::min_element(values)),
      m_high(*std::ranges::max_element(values)),
      m_first(first_pixel),
      m_last(last_pixel) {}

double GraphScale::operator()(double value) const {
    // Halved so that the extent of the largest numbers stays finite.
    const double extent = m_high / 2 - m_low / 2;
    const double part = extent == 0 ? 0.5 : (value / 2 - m_low / 2) / extent;
    return m_first + part * (m_last - m_first);
}

GraphFrame::GraphFrame(const window::Surface& surface)
    : left(DrawEng::kGraphLeft),
      right(DrawEng::kGraphLeft + DrawEng::kGraphSize - kInset),
      bottom(surface.FromBottom(DrawEng::kGraphBottom)),
      top(bottom - DrawEng::kGraphSize + kInset) {}

void DrawGraphFrame(window::Surface& surface, const GraphFrame& frame) {
    surface.Box(frame.left, frame.top, frame.right, frame.bottom, kFrameColor, false);
}

void DrawGraphCurve(window::Surface& surface, const GraphScale& x, const GraphScale& y,
                    std::span<const double> xs, std::span<const double> ys, text::Color color) {
    for (std::size_t k = 1; k < xs.size(); ++k)
        surface.Line(x(xs[k - 1]), y(ys[k - 1]), x(xs[k]), y(ys[k]), color);
}

void LabelYExtreme(window::Surface& surface, const GraphFrame& frame, const std::string& markup,
                   double middle) {
    const text::Font font = LabelFont();
    PrintLabel(surface, markup, frame.left - kYLabelGap - text::MarkupWidth(markup, font),
               middle - text::TextHeight(font) / 2, font, text::kBlack);
}

void LabelXEnd(window::Surface& surface, const GraphFrame& frame, const std::string& markup, double center) {
    const text::Font font = LabelFont();
    PrintLabel(surface, markup, center - text::MarkupWidth(markup, font) / 2, frame.bottom + kXLabelGap, font,
               text::kBlack);
}

}  // namespace tavrelo::drawing
