#include "tools/rigid/diagram_layout.h"

#include <algorithm>
#include <cmath>

#include "drawing/draw_engine.h"
#include "numeric/angles.h"

namespace tavrelo::tools::rigid {
namespace {

using drawing::DrawEng;
using numeric::CosD;
using numeric::Hypot;
using numeric::SinD;
using window::Point;

constexpr double kArrowLength = 1.375;                        // world units
constexpr double kCoupleRadius = 0.5 * DrawEng::kPixPerUnit;  // pixels
constexpr double kCoupleStep = 7;                             // pixels between couples of one point
constexpr double kCoupleTurn = 270;                           // degrees
constexpr int kWidth = kDiagramLineWidth;
constexpr double kHeadLength = 2 * kWidth + 1;  // pixels
constexpr double kHeadHalfWidth = kWidth + 1;   // pixels
constexpr double kLabelMargin = 2;              // pixels kept free around a label
constexpr double kSideStep = 8;                 // pixels between arrows that would cover each other
constexpr double kFullTurn = 360;

Point Plus(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
Point Minus(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
Point Times(Point a, double factor) { return {a.x * factor, a.y * factor}; }
double Scalar(Point a, Point b) { return a.x * b.x + a.y * b.y; }
double Cross(Point a, Point b) { return a.x * b.y - a.y * b.x; }
Point Across(Point a) { return {-a.y, a.x}; }
Point Unit(Point a) { return Times(a, 1 / Hypot(a.x, a.y)); }
bool IsSame(Point a, Point b) { return a.x == b.x && a.y == b.y; }

/// Unit vector of a direction in degrees counter-clockwise.
Point Toward(double degrees) { return {CosD(degrees), -SinD(degrees)}; }

/// Unit vector of a clock hour, `angle` degrees off the hour's axis.
Point Toward(int hour, double angle) {
    DrawEng engine;
    engine.SetDirection(hour, angle);
    return {engine.ArrowCos(), -engine.ArrowSin()};
}

/// At most 180 degrees.
double AngleBetween(double a, double b) {
    const double turn = std::fmod(std::abs(a - b), kFullTurn);
    return std::min(turn, kFullTurn - turn);
}

}  // namespace

DiagramLayout::DiagramLayout(CanvasSize size)
    : m_size(size), m_placer(size.width, size.height, kLabelMargin) {}

void DiagramLayout::AddAxis(Point from, int hour, double length, text::Color color) {
    m_diagram.axes.push_back(
        {.tail = from, .hour = hour, .length = length / DrawEng::kPixPerUnit, .color = color});
    m_placer.AddFaintLine(from, Plus(from, Times(Toward(hour, 0), length)));
}

void DiagramLayout::AddLine(Point from, Point to, text::Color color) {
    m_diagram.lines.push_back({from, to, color});
    m_placer.AddLine(from, to);
}

LabelSpot DiagramLayout::AddPoint(Point point, text::Color color) {
    m_diagram.dots.push_back({point, color});
    m_placer.AddLine({point.x - kDotRadius, point.y}, {point.x + kDotRadius, point.y});
    m_placer.AddLine({point.x, point.y - kDotRadius}, {point.x, point.y + kDotRadius});
    return {point, std::nullopt, kDotRadius};
}

LabelSpot DiagramLayout::AddForce(Point point, const ArrowSense& sense, text::Color color,
                                  const std::string& tip) {
    const Point along = Toward(sense.hour, sense.angle);
    const Point step = Times(along, kArrowLength * DrawEng::kPixPerUnit);
    const Shaft straight = sense.leaves ? Shaft{point, Plus(point, step)} : Shaft{Minus(point, step), point};
    const Shaft shaft = Beside(straight);
    m_diagram.forces.push_back({shaft.tail, sense.hour, sense.angle, kArrowLength, kWidth, color, tip});
    m_shafts.push_back(shaft);
    m_placer.AddLine(shaft.tail, shaft.tip);
    AvoidHead(shaft.tip, along);
    const Point free_end = sense.leaves ? shaft.tip : shaft.tail;
    return {free_end, Minus(free_end, point)};
}

/// Whether the second arrow would lie on the first: nearly the same line, and a common part of it.
bool DiagramLayout::Covers(const Shaft& a, const Shaft& b) {
    constexpr double kSameLine = 0.25;  // sine of the angle between them
    constexpr double kCommonPart = 5;   // pixels
    constexpr double kClear = 4;        // pixels between the middles of their common part
    const Point along = Unit(Minus(b.tip, b.tail));
    const Point other = Minus(a.tip, a.tail);
    const double length = Hypot(other.x, other.y);
    if (std::abs(Cross(along, other)) > kSameLine * length)
        return false;
    const auto [first, last] =
        std::minmax({Scalar(along, Minus(a.tail, b.tail)), Scalar(along, Minus(a.tip, b.tail))});
    const double low = std::max(first, 0.0);
    const double high = std::min(last, Scalar(along, Minus(b.tip, b.tail)));
    if (high - low < kCommonPart)
        return false;
    // The point of the first arrow beside the middle of the common part.
    const double part = ((low + high) / 2 - Scalar(along, Minus(a.tail, b.tail))) / Scalar(along, other);
    const Point beside = Plus(a.tail, Times(other, part));
    return std::abs(Cross(along, Minus(beside, b.tail))) < kClear;
}

/// The arrow where it covers no other one: where it is, or the nearest place beside it.
DiagramLayout::Shaft DiagramLayout::Beside(const Shaft& shaft) const {
    const Point across = Across(Unit(Minus(shaft.tip, shaft.tail)));
    const auto moved = [&](double steps) {
        const Point shift = Times(across, steps * kSideStep);
        return Shaft{Plus(shaft.tail, shift), Plus(shaft.tip, shift)};
    };
    const auto is_free = [&](const Shaft& place) {
        return std::ranges::none_of(m_shafts, [&](const Shaft& other) { return Covers(other, place); });
    };
    const double farthest = static_cast<double>(m_shafts.size());
    for (double steps = 0; steps <= farthest; ++steps)
        for (const double side : {1.0, -1.0})
            if (const Shaft place = moved(side * steps); is_free(place))
                return place;
    return shaft;
}

void DiagramLayout::AvoidHead(Point tip, Point along) {
    const Point rear = Minus(tip, Times(along, kHeadLength));
    const Point side = Times(Across(along), kHeadHalfWidth);
    m_placer.AddLine(Minus(rear, side), Plus(rear, side));
    m_placer.AddLine(Minus(rear, side), tip);
    m_placer.AddLine(Plus(rear, side), tip);
}

void DiagramLayout::AvoidArc(const DiagramCouple& couple) {
    constexpr int kPieces = 18;
    const double step = (couple.end - couple.start) / kPieces;
    const auto at = [&](int piece) {
        return Plus(couple.center, Times(Toward(couple.start + piece * step), couple.radius));
    };
    for (int i = 0; i < kPieces; ++i)
        m_placer.AddLine(at(i), at(i + 1));
}

/// Radius of the outermost couple of a point; 0 without one.
double DiagramLayout::OuterRadius(Point point) const {
    double outer = 0;
    for (const DiagramCouple& couple : m_diagram.couples)
        if (IsSame(couple.center, point))
            outer = std::max(outer, couple.radius);
    return outer;
}

/// Where the arc of a couple ends and its head begins, degrees. The opening looks down unless a line would
/// run through the head.
double DiagramLayout::HeadOfCouple(Point point, double sense) const {
    constexpr double kUsual = 225;  // of a couple that turns counter-clockwise
    constexpr double kStep = 15;
    constexpr double kHalfHead = 12;  // degrees from the end of the arc to the middle of the head
    constexpr double kEnough = 30;    // degrees between the head and a line
    const std::vector<double> lines = m_placer.DirectionsFrom(point);
    const auto clearance = [&](double end) {
        double least = kFullTurn;
        for (const double line : lines)
            least = std::min(least, AngleBetween(line, end + sense * kHalfHead));
        return std::min(least, kEnough);
    };
    const double usual = sense > 0 ? kUsual : 180 - kUsual;
    double best = usual;
    for (double turn = kStep; turn <= kFullTurn / 2; turn += kStep)
        for (const double side : {1.0, -1.0})
            if (const double end = usual + side * turn; clearance(end) > clearance(best))
                best = end;
    return best;
}

LabelSpot DiagramLayout::AddCouple(Point point, bool is_counterclockwise, text::Color color,
                                   const std::string& tip) {
    const double sense = is_counterclockwise ? 1 : -1;
    const double outer = OuterRadius(point);
    const double radius = outer == 0 ? kCoupleRadius : outer + kCoupleStep;
    const double end = HeadOfCouple(point, sense);
    const double start = end - sense * kCoupleTurn;
    const auto [low, high] = std::minmax(start, end);
    const Point base = Plus(point, Times(Toward(end), radius));
    const double tangent = end + sense * 90;
    const numeric::ClockReading clock = numeric::ClockOf(CosD(tangent), SinD(tangent));
    const DiagramArrow head = {base,   clock.hour, clock.angle, kHeadLength / DrawEng::kPixPerUnit,
                               kWidth, color,      tip};
    m_diagram.couples.push_back({point, radius, low, high, head});
    AvoidArc(m_diagram.couples.back());
    AvoidHead(Plus(base, Times(Toward(tangent), kHeadLength)), Toward(tangent));
    return {point, std::nullopt, radius};
}

Diagram DiagramLayout::Finished() {
    for (const WantedLabel& label : m_labels) {
        const LabelSpot& spot = label.spot;
        const Point outward = spot.outward ? *spot.outward : m_placer.FreeSide(spot.anchor);
        m_diagram.labels.push_back(m_placer.Place(label.markup, spot.anchor, outward, label.color,
                                                  std::max(spot.radius, OuterRadius(spot.anchor))));
    }
    m_labels.clear();
    return std::move(m_diagram);
}

}  // namespace tavrelo::tools::rigid
