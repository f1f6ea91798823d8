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

}  // namespace

double SteppedZoom(double zoom, int steps) {
    const auto* nearest =
        std::ranges::min_element(kSteps, {}, [zoom](double step) { return std::abs(step - zoom); });
    const auto index = nearest - std::begin(kSteps) + steps;
    return kSteps[std::clamp<std::ptrdiff_t>(index, 0, std::ssize(kSteps) - 1)];
}

double FirstZoom(const QSizeF& page, const QSizeF& screen) {
    const QSizeF room = screen * kFirstShare;
    const double fitting = std::min(room.width() / page.width(), room.height() / page.height());
    const auto* above = std::ranges::upper_bound(kSteps, fitting);
    return above == std::begin(kSteps) ? kSmallestZoom : *std::prev(above);
}

}  // namespace tavrelo::qt
