#include "ink.h"

#include <QLineF>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "qt/fonts.h"
#include "show.h"

namespace tavrelo::transcript {
namespace {

using Operations = std::span<const window::DrawOp>;

constexpr double kReach = 3;   // pixels at 100 % around a stroke that it may touch
constexpr double kMargin = 2;  // at the edge of the picture, where its frame lies

double Squared(double number) { return number * number; }

/// How far two colours lie apart.
double Distance(QRgb a, QRgb b) {
    return std::sqrt(Squared(qRed(a) - qRed(b)) + Squared(qGreen(a) - qGreen(b)) +
                     Squared(qBlue(a) - qBlue(b)));
}

QPointF OnCircle(double x, double y, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {x + radius * std::cos(angle), y - radius * std::sin(angle)};
}

std::vector<QPointF> Along(const QLineF& line) {
    constexpr int kSteps = 8;
    std::vector<QPointF> places;
    for (int k = 1; k < kSteps; ++k)
        places.push_back(line.pointAt(static_cast<double>(k) / kSteps));
    return places;
}

QRectF BoxOf(const window::BoxOp& box) {
    return QRectF(QPointF(box.x1, box.y1), QPointF(box.x2, box.y2)).normalized();
}

QRectF BoxOf(const window::TextOp& op, const text::PlacedRun& run) {
    return {op.x + run.dx, op.y + run.dy, text::TextWidth(run.text, run.font), text::TextHeight(run.font)};
}

QRectF Around(const QRectF& box) { return box.adjusted(-kReach, -kReach, kReach, kReach); }

std::vector<QPointF> AlongArc(double x, double y, double radius, double start, double span) {
    constexpr int kSteps = 8;
    std::vector<QPointF> places;
    for (int k = 0; k < kSteps; ++k)
        places.push_back(OnCircle(x, y, radius, start + span * (k + 0.5) / kSteps));
    return places;
}

/// Degrees that an arc covers.
double SpanOf(const window::ArcOp& arc) {
    constexpr double kFullTurn = 360;
    return arc.end < arc.start ? arc.end - arc.start + kFullTurn : arc.end - arc.start;
}

/// Part of an operation: one colour and the places that must bear it, or a pixel no more than `near` away
/// from them; without places, somewhere in the box.
struct Ink {
    text::Color color;
    std::vector<QPointF> places;
    double near;
    QRectF box;
};

/// The ink that an operation leaves.
struct InkOf {
    std::vector<Ink> operator()(const window::ClearOp&) const { return {}; }
    std::vector<Ink> operator()(const window::ImageOp&) const { return {}; }
    std::vector<Ink> operator()(const window::LineOp& line) const {
        return {{line.color, Along({line.x1, line.y1, line.x2, line.y2}), 1, {}}};
    }
    std::vector<Ink> operator()(const window::BoxOp& op) const {
        const QRectF box = BoxOf(op);
        std::vector<QPointF> places;
        for (const QLineF& side :
             {QLineF(box.topLeft(), box.topRight()), QLineF(box.topRight(), box.bottomRight()),
              QLineF(box.bottomRight(), box.bottomLeft()), QLineF(box.bottomLeft(), box.topLeft())})
            for (const QPointF& place : Along(side))
                places.push_back(place);
        if (op.filled)
            places.push_back(box.center());
        return {{op.color, places, 1, {}}};
    }
    std::vector<Ink> operator()(const window::CircleOp& circle) const {
        constexpr double kFullTurn = 360;
        std::vector<QPointF> places = AlongArc(circle.x, circle.y, circle.radius, 0, kFullTurn);
        if (circle.filled)
            places.emplace_back(circle.x, circle.y);
        return {{circle.color, places, 1, {}}};
    }
    std::vector<Ink> operator()(const window::ArcOp& arc) const {
        return {{arc.color, AlongArc(arc.x, arc.y, arc.radius, arc.start, SpanOf(arc)), 1, {}}};
    }
    std::vector<Ink> operator()(const window::PolygonOp& polygon) const {
        // Heads of arrows are small: their corners tell them from the shaft.
        constexpr double kTowardCorner = 0.6;
        QPointF middle;
        for (const window::Point& point : polygon.points)
            middle += QPointF(point.x, point.y) / static_cast<double>(polygon.points.size());
        std::vector<QPointF> places;
        for (const window::Point& point : polygon.points)
            places.push_back(middle + kTowardCorner * (QPointF(point.x, point.y) - middle));
        return {{polygon.color, places, 0, {}}};
    }
    std::vector<Ink> operator()(const window::TextOp& op) const {
        std::vector<Ink> inks;
        for (const text::PlacedRun& run : op.runs)
            if (run.text.find_first_not_of(" \t\r\n") != std::string::npos)
                inks.push_back({run.color, {}, 0, BoxOf(op, run)});
        return inks;
    }
};

double DistanceToLine(const QPointF& place, const QLineF& line) {
    const QPointF direction = line.p2() - line.p1();
    const double length = QPointF::dotProduct(direction, direction);
    const double along = length > 0 ? QPointF::dotProduct(place - line.p1(), direction) / length : 0;
    return QLineF(place, line.pointAt(std::clamp(along, 0.0, 1.0))).length();
}

/// Whether an operation may have changed the colour at a place.
struct MayCover {
    QPointF place;

    bool operator()(const window::ClearOp&) const { return true; }
    bool operator()(const window::ImageOp& op) const {
        return Around({op.x, op.y, op.width, op.height}).contains(place);
    }
    bool operator()(const window::LineOp& op) const {
        return DistanceToLine(place, {op.x1, op.y1, op.x2, op.y2}) < kReach + op.width;
    }
    bool operator()(const window::BoxOp& op) const {
        const QRectF inside = BoxOf(op).adjusted(kReach, kReach, -kReach, -kReach);
        return Around(BoxOf(op)).contains(place) && (op.filled || !inside.contains(place));
    }
    bool operator()(const window::CircleOp& op) const {
        const double distance = QLineF(place, {op.x, op.y}).length() - op.radius;
        return op.filled ? distance < kReach : std::abs(distance) < kReach;
    }
    bool operator()(const window::ArcOp& op) const {
        return std::abs(QLineF(place, {op.x, op.y}).length() - op.radius) < kReach;
    }
    bool operator()(const window::PolygonOp& op) const {
        QPolygonF polygon;
        for (const window::Point& point : op.points)
            polygon << QPointF(point.x, point.y);
        return Around(polygon.boundingRect()).contains(place);
    }
    bool operator()(const window::TextOp& op) const {
        return std::ranges::any_of(
            op.runs, [&](const text::PlacedRun& run) { return Around(BoxOf(op, run)).contains(place); });
    }
};

class Sampler {
  public:
    Sampler(const QImage& painted, double zoom, const window::Recorder& recording)
        : m_painted(painted),
          m_zoom(zoom),
          m_background(qt::ToQColor(recording.BackColor).rgb()),
          m_inside(QRectF(0, 0, recording.Width(), recording.Height())
                       .adjusted(kMargin, kMargin, -kMargin, -kMargin)) {}

    void SetBackground(text::Color color) { m_background = qt::ToQColor(color).rgb(); }

    /// False when a place of the ink that can be judged does not bear it.
    bool Finds(const Ink& ink, Operations later) const {
        const QRgb color = qt::ToQColor(ink.color).rgb();
        constexpr double kHardlySeen = 40;
        if (Distance(color, m_background) < kHardlySeen)
            return true;
        if (ink.places.empty())
            return FindsSomewhere(ink.box, color, later);
        return std::ranges::all_of(ink.places, [&](const QPointF& place) {
            const QRectF pixels(place - QPointF(ink.near, ink.near),
                                place + QPointF(ink.near + 1, ink.near + 1));
            return !IsOpen(place, later) || HasColor(pixels, color);
        });
    }

  private:
    bool IsOpen(const QPointF& place, Operations later) const {
        return m_inside.contains(place) && std::ranges::none_of(later, [&](const window::DrawOp& op) {
                   return std::visit(MayCover{place}, op);
               });
    }

    /// A text stands open where its box and the middle of its box do.
    bool FindsSomewhere(const QRectF& box, QRgb color, Operations later) const {
        const bool is_open = m_inside.contains(box) && IsOpen(box.center(), later) &&
                             IsOpen({box.left(), box.center().y()}, later) &&
                             IsOpen({box.right(), box.center().y()}, later);
        return !is_open || HasColor(box, color);
    }

    /// Whether some pixel of a place is nearer to the colour than smoothed edges leave it to the background.
    bool HasColor(const QRectF& place, QRgb color) const {
        constexpr double kSmoothed = 0.7;
        const double limit = kSmoothed * Distance(color, m_background);
        const QRect pixels = QRectF(place.topLeft() * m_zoom, place.bottomRight() * m_zoom)
                                 .toAlignedRect()
                                 .intersected(m_painted.rect());
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            for (int x = pixels.left(); x <= pixels.right(); ++x)
                if (Distance(m_painted.pixel(x, y), color) <= limit)
                    return true;
        return false;
    }

    const QImage& m_painted;
    double m_zoom;
    QRgb m_background;
    QRectF m_inside;
};

}  // namespace

std::string MissingInk(const QImage& painted, double zoom, const window::Recorder& recording) {
    Sampler sampler(painted, zoom, recording);
    const Operations operations = recording.Operations();
    for (std::size_t k = 0; k < operations.size(); ++k) {
        if (const auto* clear = std::get_if<window::ClearOp>(&operations[k]))
            sampler.SetBackground(clear->background);
        for (const Ink& ink : std::visit(InkOf(), operations[k]))
            if (!sampler.Finds(ink, operations.subspan(k + 1)))
                return ShapeLines(operations.subspan(k, 1), {}).front();
    }
    return {};
}

}  // namespace tavrelo::transcript
