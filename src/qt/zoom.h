#pragma once

#include <QRect>
#include <QSize>
#include <QSizeF>
#include <span>

namespace tavrelo::qt {

inline constexpr double kSmallestZoom = 0.5;
inline constexpr double kLargestZoom = 4;

/// The zooms that keys, wheel and menu go through, in ascending order.
std::span<const double> ZoomSteps();

/// The zoom that stands so many steps above (below, when negative) the step nearest to `zoom`.
double SteppedZoom(double zoom, int steps);

/// The zoom at which a window first opens: the largest step with which a page and the bar below it leave some
/// of the screen free.
double FirstZoom(const QSizeF& page, const QSizeF& screen);

/// Height of the bar below a page, in pixels of the screen. It grows with the page but stays readable.
int BarHeight(double zoom);

/// The size of a page at a zoom.
QSize PageSize(const QSizeF& page, double zoom);

/// The largest zoom at which a page and the bar below it fit into a frame, between the smallest and the
/// largest one.
double FittingZoom(const QSizeF& page, const QSizeF& frame);

/// The size of the frame around a page and its bar at a zoom. What `room` cannot hold is scrolled: then the
/// frame ends where the room ends, and a bar of `scroll_bar` pixels stands beside the page.
QSize FrameSize(const QSizeF& page, double zoom, const QSize& room, int scroll_bar);

/// A rectangle of that size moved, as little as need be, so that it lies in `room`; at least its top left
/// corner does.
QRect MovedInside(QRect rect, const QRect& room);

}  // namespace tavrelo::qt
