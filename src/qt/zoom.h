#pragma once

#include <QSizeF>

namespace tavrelo::qt {

inline constexpr double kSmallestZoom = 0.5;
inline constexpr double kLargestZoom = 4;

/// The zoom that stands so many steps above (below, when negative) the step nearest to `zoom`.
double SteppedZoom(double zoom, int steps);

/// The zoom at which a window first opens: the largest step with which a page leaves some of the screen free.
double FirstZoom(const QSizeF& page, const QSizeF& screen);

}  // namespace tavrelo::qt
