#include "calc/label_placer.h"

#include <algorithm>
#include <cmath>

#include "numeric/angles.h"
#include "shell/markup.h"
#include "vectors/draw_engine.h"

namespace tavrelo::calc {
namespace {

using shell::Point;

constexpr double kGaps[] = {4, 10, 18, 28, 40};                                         // pixels
constexpr double kTurns[] = {0, 20, -20, 45, -45, 70, -70, 100, -100, 140, -140, 180};  // degrees

/// Unit vector; upward when the vector is null.
Point Direction(Point vector) {
    const double length = numeric::Hypot(vector.x, vector.y);
    if (length == 0)
        return {0, -1};
    return {vector.x / length, vector.y / length};
}

Point Turned(Point vector, double degrees) {
    const double cos = numeric::CosD(degrees);
    const double sin = numeric::SinD(degrees);
    return {vector.x * cos - vector.y * sin, vector.x * sin + vector.y * cos};
}

}  // namespace

/// Clips the line against the four sides of the area.
bool LabelPlacer::Crosses(const Segment& line, const Area& area) {
    double first = 0;
    double last = 1;
    const auto clip = [&](double start, double step, double low, double high) {
        if (step == 0)
            return start >= low && start <= high;
        const double a = (low - start) / step;
        const double b = (high - start) / step;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
        return first <= last;
    };
    return clip(line.from.x, line.to.x - line.from.x, area.left, area.right) &&
           clip(line.from.y, line.to.y - line.from.y, area.top, area.bottom);
}

bool LabelPlacer::IsFree(const Area& area) const {
    const bool inside = area.left >= 0 && area.top >= 0 && area.right <= m_surface.Width() &&
                        area.bottom <= m_surface.Height();
    const auto meets = [&](const Area& other) {
        return area.left < other.right && other.left < area.right && area.top < other.bottom &&
               other.top < area.bottom;
    };
    return inside &&
           std::ranges::none_of(m_lines, [&](const Segment& line) { return Crosses(line, area); }) &&
           std::ranges::none_of(m_labels, meets);
}

void LabelPlacer::Place(const std::string& markup, Point anchor, Point outward, shell::Color color) {
    const shell::Font font = vectors::LabelFont();
    const double half_width = shell::MarkupWidth(markup, font) / 2;
    const double half_height = shell::TextHeight(font) / 2;
    const Point direction = Direction(outward);
    const auto area_at = [&](double gap, double turn) {
        const Point side = Turned(direction, turn);
        const double reach = gap + std::abs(side.x) * half_width + std::abs(side.y) * half_height;
        const Point center{anchor.x + reach * side.x, anchor.y + reach * side.y};
        return Area{center.x - half_width, center.y - half_height, center.x + half_width,
                    center.y + half_height};
    };
    const auto find = [&] {
        for (const double gap : kGaps)
            for (const double turn : kTurns)
                if (const Area area = area_at(gap, turn); IsFree(area))
                    return area;
        return area_at(kGaps[0], kTurns[0]);
    };
    const Area area = find();
    m_labels.push_back(area);
    vectors::PrintLabel(m_surface, markup, area.left, area.top, font, color);
}

}  // namespace tavrelo::calc
