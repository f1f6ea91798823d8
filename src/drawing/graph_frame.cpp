#include <algorithm>
#include <cmath>

#include "drawing/draw_engine.h"
#include "text/number_text.h"

namespace tavrelo::drawing {
namespace {

using text::Color;
using window::Surface;

constexpr double kInset = 2;       // so that the frame's right and upper sides show
constexpr double kYLabelGap = 20;  // pixels between the frame and the labels of the y extremes
constexpr double kXLabelGap = 5;   // pixels between the frame and the labels of the x extremes
constexpr Color kFrameColor = text::Rgb(0x80, 0x80, 0x80);
constexpr Color kAxisColor = text::Rgb(0xa0, 0xa0, 0xa0);

/// An extent of data laid over an extent of pixels; no extent of data maps to the middle.
class Scale {
  public:
    Scale(std::span<const double> values, double first_pixel, double last_pixel)
        : m_low(*std::ranges::min_element(values)),
          m_high(*std::ranges::max_element(values)),
          m_first(first_pixel),
          m_last(last_pixel) {}

    double Low() const { return m_low; }
    double High() const { return m_high; }
    bool CrossesZero() const { return m_low < 0 && m_high > 0; }
    double operator()(double value) const {
        // Halved so that the extent of the largest numbers stays finite.
        const double extent = m_high / 2 - m_low / 2;
        const double part = extent == 0 ? 0.5 : (value / 2 - m_low / 2) / extent;
        return m_first + part * (m_last - m_first);
    }

  private:
    double m_low;
    double m_high;
    double m_first;
    double m_last;
};

/// Both scales of a graph in its frame on a picture.
struct Frame {
    Frame(const Surface& surface, std::span<const double> xs, std::span<const double> ys)
        : left(DrawEng::kGraphLeft),
          right(DrawEng::kGraphLeft + DrawEng::kGraphSize - kInset),
          bottom(surface.FromBottom(DrawEng::kGraphBottom)),
          top(bottom - DrawEng::kGraphSize + kInset),
          x(xs, left, right),
          y(ys, bottom, top) {}

    double left, right, bottom, top;  // pixels
    Scale x;
    Scale y;
};

void LabelYExtreme(Surface& surface, const std::string& text, double frame_left, double middle) {
    const text::Font font = LabelFont();
    PrintLabel(surface, text, frame_left - kYLabelGap - text::TextWidth(text, font),
               middle - text::TextHeight(font) / 2, font, text::kBlack);
}

void LabelXEnd(Surface& surface, const std::string& text, double center, double frame_bottom) {
    const text::Font font = LabelFont();
    PrintLabel(surface, text, center - text::TextWidth(text, font) / 2, frame_bottom + kXLabelGap, font,
               text::kBlack);
}

}  // namespace

void DrawEng::DrawGraph(Surface& surface, std::span<const double> xs, std::span<const double> ys, Color color,
                        int decimals) const {
    const auto [left, right, bottom, top, x, y] = Frame(surface, xs, ys);

    surface.Box(left, top, right, bottom, kFrameColor, false);
    if (x.CrossesZero())
        surface.Line(x(0), top, x(0), bottom, kAxisColor);
    if (y.CrossesZero())
        surface.Line(left, y(0), right, y(0), kAxisColor);
    for (std::size_t k = 1; k < xs.size(); ++k)
        surface.Line(x(xs[k - 1]), y(ys[k - 1]), x(xs[k]), y(ys[k]), color);

    LabelYExtreme(surface, "Ymax = " + text::RoundedText(y.High(), decimals), left, top);
    LabelYExtreme(surface, "Ymin = " + text::RoundedText(y.Low(), decimals), left, bottom);
    LabelXEnd(surface, text::RoundedText(x.Low(), decimals), left, bottom);
    LabelXEnd(surface, text::RoundedText(x.High(), decimals), right, bottom);
}

void DrawEng::DrawGraphPoints(Surface& surface, const PointLists& curve, const PointLists& points,
                              Color color) const {
    constexpr double kRadius = 3;
    const Frame frame(surface, curve.xs, curve.ys);
    for (std::size_t k = 0; k < points.xs.size(); ++k) {
        const double x = frame.x(points.xs[k]);
        const double y = frame.y(points.ys[k]);
        if (x >= 0 && x <= surface.Width() && y >= 0 && y <= surface.Height())
            surface.Circle(x, y, kRadius, color);
    }
}

}  // namespace tavrelo::drawing
