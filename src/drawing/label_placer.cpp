#include "drawing/label_placer.h"

#include <algorithm>
#include <cmath>

#include "drawing/draw_engine.h"
#include "numeric/angles.h"
#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

using window::Point;

constexpr double kGaps[] = {4, 10, 18, 28, 40};                                         // pixels
constexpr double kTurns[] = {0, 20, -20, 45, -45, 70, -70, 100, -100, 140, -140, 180};  // degrees
constexpr double kNear = 10;         // pixels around a place within which a line counts as touching it
constexpr double kSameAngle = 1e-6;  // degrees
constexpr double kFullTurn = 360;

Point Minus(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

double Length(Point vector) { return numeric::Hypot(vector.x, vector.y); }

/// Unit vector; upward when the vector is null.
Point Direction(Point vector) {
    const double length = Length(vector);
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

void PrintLabel(window::Surface& surface, const PlacedLabel& label) {
    PrintLabel(surface, label.markup, label.left, label.top, LabelFont(), label.color);
}

/// Clips the line against the four sides of the area.
bool LabelPlacer::Crosses(const Segment& line, const Area& area) {
    // Most lines lie far away.
    if (std::max(line.from.x, line.to.x) < area.left || std::min(line.from.x, line.to.x) > area.right ||
        std::max(line.from.y, line.to.y) < area.top || std::min(line.from.y, line.to.y) > area.bottom)
        return false;
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

bool LabelPlacer::IsNear(const Segment& line, Point place) {
    const Point along = Minus(line.to, line.from);
    const Point start = Minus(place, line.from);
    const double square = along.x * along.x + along.y * along.y;
    const double part = square == 0 ? 0 : (start.x * along.x + start.y * along.y) / square;
    const double nearest = std::clamp(part, 0.0, 1.0);
    return Length({start.x - nearest * along.x, start.y - nearest * along.y}) <= kNear;
}

bool LabelPlacer::IsClear(const Area& area) const {
    const bool inside = area.left >= 0 && area.top >= 0 && area.right <= m_width && area.bottom <= m_height;
    const auto meets = [&](const Area& other) {
        return area.left < other.right && other.left < area.right && area.top < other.bottom &&
               other.top < area.bottom;
    };
    return inside &&
           std::ranges::none_of(m_lines, [&](const Segment& line) { return Crosses(line, area); }) &&
           std::ranges::none_of(m_labels, meets);
}

bool LabelPlacer::CrossesFaintLine(const Area& area) const {
    return std::ranges::any_of(m_faint_lines, [&](const Segment& line) { return Crosses(line, area); });
}

std::vector<double> LabelPlacer::DirectionsFrom(Point place) const {
    std::vector<double> directions;
    for (const auto* lines : {&m_lines, &m_faint_lines})
        for (const Segment& line : *lines) {
            if (!IsNear(line, place))
                continue;
            for (const Point end : {line.from, line.to})
                if (const Point away = Minus(end, place); Length(away) > kNear)
                    directions.push_back(numeric::AngleOf(away.x, -away.y));
        }
    std::ranges::sort(directions);
    return directions;
}

Point LabelPlacer::FreeSide(Point place) const {
    const std::vector<double> directions = DirectionsFrom(place);
    Point side{0, 1};
    double widest = 0;
    for (std::size_t i = 0; i < directions.size(); ++i) {
        const bool is_last = i + 1 == directions.size();
        const double angle = (is_last ? directions.front() + kFullTurn : directions[i + 1]) - directions[i];
        const double middle = directions[i] + angle / 2;
        const Point candidate{numeric::CosD(middle), -numeric::SinD(middle)};
        const bool is_wider = angle > widest + kSameAngle;
        if (is_wider || (angle > widest - kSameAngle && candidate.y > side.y + kSameAngle)) {
            widest = angle;
            side = candidate;
        }
    }
    return side;
}

std::optional<PlacedLabel> LabelPlacer::PlaceAt(const std::string& markup, Point corner, text::Color color) {
    const text::Font font = LabelFont();
    const double width = text::MarkupWidth(markup, font);
    const double height = text::TextHeight(font);
    const double left = std::max(0.0, std::min(corner.x, m_width - width));
    const double top = std::max(0.0, std::min(corner.y, m_height - height));
    const Area area{left, top, left + width, top + height};
    if (!IsClear(area))
        return {};
    m_labels.push_back(area);
    return PlacedLabel{markup, left, top, color};
}

PlacedLabel LabelPlacer::Place(const std::string& markup, Point anchor, Point outward, text::Color color,
                               double radius) {
    const text::Font font = LabelFont();
    const double half_width = text::MarkupWidth(markup, font) / 2;
    const double half_height = text::TextHeight(font) / 2;
    const Point direction = Direction(outward);
    const auto area_at = [&](double gap, double turn) {
        const Point side = Turned(direction, turn);
        const double reach = radius + gap + std::abs(side.x) * half_width + std::abs(side.y) * half_height;
        const Point center{anchor.x + reach * side.x, anchor.y + reach * side.y};
        return Area{center.x - half_width, center.y - half_height, center.x + half_width,
                    center.y + half_height};
    };
    const auto widened = [&](const Area& area) {
        return Area{area.left - m_margin, area.top - m_margin, area.right + m_margin, area.bottom + m_margin};
    };
    const auto find = [&] {
        for (const bool may_cross_faint : {false, true})
            for (const double gap : kGaps)
                for (const double turn : kTurns) {
                    const Area area = area_at(gap, turn);
                    if (IsClear(widened(area)) && (may_cross_faint || !CrossesFaintLine(widened(area))))
                        return area;
                }
        return area_at(kGaps[0], kTurns[0]);
    };
    const Area area = find();
    m_labels.push_back(area);
    return {markup, area.left, area.top, color};
}

}  // namespace tavrelo::drawing
