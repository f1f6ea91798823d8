#pragma once

#include <span>
#include <string>
#include <utility>

#include "window/surface.h"

namespace tavrelo::drawing {

/// An extent of data laid over an extent of pixels; no extent of data maps to the middle.
class GraphScale {
  public:
    /// `values` is not empty; its least and its largest number map to the two pixels.
    GraphScale(std::span<const double> values, double first_pixel, double last_pixel);

    double Low() const { return m_low; }
    double High() const { return m_high; }
    /// Zero lies strictly inside the extent of data.
    bool CrossesZero() const { return m_low < 0 && m_high > 0; }
    /// The pixel of a value; finite for every finite extent.
    double operator()(double value) const;
    /// The same scale, to tell the value of a pixel.
    window::TipScale Tip(std::string name) const { return {std::move(name), m_first, m_last, m_low, m_high}; }

  private:
    double m_low;
    double m_high;
    double m_first;
    double m_last;
};

/// The square frame of a graph on a picture, pixels from the top left.
struct GraphFrame {
    explicit GraphFrame(const window::Surface& surface);

    GraphScale Across(std::span<const double> xs) const { return {xs, left, right}; }
    GraphScale Upward(std::span<const double> ys) const { return {ys, bottom, top}; }

    double left, right, bottom, top;
};

/// The colour of the zero lines inside a frame.
inline constexpr text::Color kGraphAxisColor = text::Rgb(0xa0, 0xa0, 0xa0);

void DrawGraphFrame(window::Surface& surface, const GraphFrame& frame);
/// The points joined by straight lines; lists of equal length.
void DrawGraphCurve(window::Surface& surface, const GraphScale& x, const GraphScale& y,
                    std::span<const double> xs, std::span<const double> ys, text::Color color);
/// A label left of the frame, its middle at the height `middle`; picture markup.
void LabelYExtreme(window::Surface& surface, const GraphFrame& frame, const std::string& markup,
                   double middle);
/// A label below the frame, centred at `center`; picture markup.
void LabelXEnd(window::Surface& surface, const GraphFrame& frame, const std::string& markup, double center);

}  // namespace tavrelo::drawing
