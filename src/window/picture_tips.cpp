#include "window/picture_tips.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "text/number_text.h"

namespace tavrelo::window {
namespace {

constexpr double kReach = 6;  // pixels from a line at which a pointer still means it
constexpr double kNowhere = std::numeric_limits<double>::max();

double DistanceToSegment(Point place, Point from, Point to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double square = dx * dx + dy * dy;
    const double along =
        square == 0 ? 0 : std::clamp(((place.x - from.x) * dx + (place.y - from.y) * dy) / square, 0.0, 1.0);
    return std::hypot(place.x - from.x - along * dx, place.y - from.y - along * dy);
}

/// How far a place is from the line of a tip; a graph has none.
struct Distance {
    Point place;

    double operator()(const ArrowTip& arrow) const { return DistanceToSegment(place, arrow.tail, arrow.tip); }
    double operator()(const RingTip& ring) const {
        return std::abs(std::hypot(place.x - ring.center.x, place.y - ring.center.y) - ring.radius);
    }
    double operator()(const GraphTip&) const { return kNowhere; }
};

bool IsBetween(double pixel, const TipScale& scale) {
    const auto [low, high] = std::minmax(scale.first_pixel, scale.last_pixel);
    return pixel >= low && pixel <= high;
}

std::string ValueText(const TipScale& scale, double pixel, int decimals) {
    return scale.name + " = " + text::RoundedText(scale.ValueAt(pixel), decimals);
}

/// What is told at a place that no arrow claims.
struct Values {
    Point place;

    std::string operator()(const GraphTip& graph) const {
        if (!IsBetween(place.x, graph.across) || !IsBetween(place.y, graph.upward.front()))
            return {};
        std::string text = ValueText(graph.across, place.x, graph.decimals);
        for (const TipScale& scale : graph.upward)
            text += ", " + ValueText(scale, place.y, graph.decimals);
        return graph.note.empty() ? text : text + "\n" + graph.note;
    }
    std::string operator()(const auto&) const { return {}; }
};

struct TextOf {
    std::string operator()(const GraphTip&) const { return {}; }
    std::string operator()(const auto& line) const { return line.text; }
};

}  // namespace

double TipScale::ValueAt(double pixel) const {
    if (last_pixel == first_pixel)
        return first_value;
    const double part = std::clamp((pixel - first_pixel) / (last_pixel - first_pixel), 0.0, 1.0);
    // Not first + part * (last - first): the extent of the largest numbers has no value.
    return (1 - part) * first_value + part * last_value;
}

std::string TipAt(std::span<const PictureTip> tips, Point place) {
    const auto distance = [&](const PictureTip& tip) { return std::visit(Distance{place}, tip); };
    const auto nearest = std::ranges::min_element(tips, {}, distance);
    if (nearest == tips.end())
        return {};
    if (distance(*nearest) <= kReach)
        return std::visit(TextOf{}, *nearest);
    for (const PictureTip& tip : tips)
        if (std::string text = std::visit(Values{place}, tip); !text.empty())
            return text;
    return {};
}

}  // namespace tavrelo::window
