#include "qt/zoom.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tavrelo::qt {
namespace {

constexpr double kSteps[] = {kSmallestZoom, 0.6,  0.7, 0.8, 0.9, 1,   1.1,         1.25,
                             1.5,           1.75, 2,   2.5, 3,   3.5, kLargestZoom};

/// Share of the screen that the first window may take.
constexpr double kFirstShare = 0.92;

constexpr double kBarHeight = 20;           // pixels at 100 %
constexpr double kSmallestBarScale = 0.75;  // below it its text could not be read

/// The largest factor by which a size fits into another one.
double Fitting(const QSizeF& size, const QSizeF& room) {
    return std::min(room.width() / size.width(), room.height() / size.height());
}

QSizeF WithBar(const QSizeF& page) { return {page.width(), page.height() + kBarHeight}; }

}  // namespace

std::span<const double> ZoomSteps() { return kSteps; }

double SteppedZoom(double zoom, int steps) {
    const auto* nearest =
        std::ranges::min_element(kSteps, {}, [zoom](double step) { return std::abs(step - zoom); });
    const auto index = nearest - std::begin(kSteps) + steps;
    return kSteps[std::clamp<std::ptrdiff_t>(index, 0, std::ssize(kSteps) - 1)];
}

double FirstZoom(const QSizeF& page, const QSizeF& screen) {
    const auto* above = std::ranges::upper_bound(kSteps, Fitting(WithBar(page), screen * kFirstShare));
    return above == std::begin(kSteps) ? kSmallestZoom : *std::prev(above);
}

int BarHeight(double zoom) {
    return static_cast<int>(kBarHeight * std::clamp(zoom, kSmallestBarScale, kLargestZoom));
}

QSize PageSize(const QSizeF& page, double zoom) {
    return {qRound(page.width() * zoom), qRound(page.height() * zoom)};
}

double FittingZoom(const QSizeF& page, const QSizeF& frame) {
    double zoom = Fitting(WithBar(page), frame);
    if (zoom < kSmallestBarScale)
        zoom = Fitting(page, {frame.width(), frame.height() - BarHeight(kSmallestBarScale)});
    return std::clamp(zoom, kSmallestZoom, kLargestZoom);
}

QSize FrameSize(const QSizeF& page, double zoom, const QSize& room, int scroll_bar) {
    QSize frame = PageSize(page, zoom) + QSize(0, BarHeight(zoom));
    const bool is_tall = frame.height() > room.height();
    const bool is_wide = frame.width() > room.width();
    frame += QSize(is_tall ? scroll_bar : 0, is_wide ? scroll_bar : 0);
    return frame.boundedTo(room);
}

QRect MovedInside(QRect rect, const QRect& room) {
    rect.moveRight(std::min(rect.right(), room.right()));
    rect.moveBottom(std::min(rect.bottom(), room.bottom()));
    rect.moveLeft(std::max(rect.left(), room.left()));
    rect.moveTop(std::max(rect.top(), room.top()));
    return rect;
}

}  // namespace tavrelo::qt
