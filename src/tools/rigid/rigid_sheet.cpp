#include "tools/rigid/rigid_sheet.h"

#include <algorithm>
#include <cmath>

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
constexpr int kWidth = 2;                                     // pixels, of all lines but the axes
constexpr double kHeadLength = 2 * kWidth + 1;                // pixels
constexpr double kHeadHalfWidth = kWidth + 1;                 // pixels
constexpr double kDotRadius = 3;                              // pixels
constexpr double kLabelMargin = 2;                            // pixels kept free around a label
constexpr double kSideStep = 8;  // pixels between arrows that would cover each other
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

/// At most 180 degrees.
double AngleBetween(double a, double b) {
    const double turn = std::fmod(std::abs(a - b), kFullTurn);
    return std::min(turn, kFullTurn - turn);
}

}  // namespace

RigidSheet::RigidSheet(window::Surface& canvas) : m_canvas(canvas), m_placer(canvas, kLabelMargin) {}

void RigidSheet::AddAxis(Point from, int hour, double length, text::Color color) {
    m_engine.MoveTo(m_canvas, from.x, from.y, 1);
    m_engine.DrawArrow(m_canvas, {.length = length / DrawEng::kPixPerUnit, .hour = hour, .color = color});
    const Point along{m_engine.ArrowCos(), -m_engine.ArrowSin()};
    m_placer.AddFaintLine(from, Plus(from, Times(along, length)));
}

void RigidSheet::AddLine(Point from, Point to, text::Color color) {
    m_canvas.DrawWidth = kWidth;
    m_canvas.Line(from.x, from.y, to.x, to.y, color);
    m_canvas.DrawWidth = 1;
    m_placer.AddLine(from, to);
}

LabelSpot RigidSheet::AddPoint(Point point, text::Color color) {
    m_dots.push_back({point, color});
    m_placer.AddLine({point.x - kDotRadius, point.y}, {point.x + kDotRadius, point.y});
    m_placer.AddLine({point.x, point.y - kDotRadius}, {point.x, point.y + kDotRadius});
    return {point, std::nullopt, kDotRadius};
}

void RigidSheet::DrawPoints() {
    m_canvas.Filled = true;
    for (const Dot& dot : m_dots) {
        m_canvas.FillColor = dot.color;
        m_canvas.Circle(dot.center.x, dot.center.y, kDotRadius, dot.color);
    }
    m_canvas.Filled = false;
    m_dots.clear();
}

LabelSpot RigidSheet::AddForce(Point point, const ArrowSense& sense, text::Color color) {
    m_engine.SetDirection(sense.hour, sense.angle);
    const Point along{m_engine.ArrowCos(), -m_engine.ArrowSin()};
    const Point step = Times(along, kArrowLength * DrawEng::kPixPerUnit);
    const Shaft straight = sense.leaves ? Shaft{point, Plus(point, step)} : Shaft{Minus(point, step), point};
    const Shaft shaft = Beside(straight);
    m_engine.MoveTo(m_canvas, shaft.tail.x, shaft.tail.y, 1);
    m_engine.DrawArrow(
        m_canvas,
        {.length = kArrowLength, .hour = sense.hour, .angle = sense.angle, .color = color, .width = kWidth});
    m_forces.push_back(shaft);
    m_placer.AddLine(shaft.tail, shaft.tip);
    AvoidHead(shaft.tip, along);
    const Point free_end = sense.leaves ? shaft.tip : shaft.tail;
    return {free_end, Minus(free_end, point)};
}

/// Whether the second arrow would lie on the first: nearly the same line, and a common part of it.
bool RigidSheet::Covers(const Shaft& a, const Shaft& b) {
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
RigidSheet::Shaft RigidSheet::Beside(const Shaft& shaft) const {
    const Point across = Across(Unit(Minus(shaft.tip, shaft.tail)));
    const auto moved = [&](double steps) {
        const Point shift = Times(across, steps * kSideStep);
        return Shaft{Plus(shaft.tail, shift), Plus(shaft.tip, shift)};
    };
    const auto is_free = [&](const Shaft& place) {
        return std::ranges::none_of(m_forces, [&](const Shaft& other) { return Covers(other, place); });
    };
    const double farthest = static_cast<double>(m_forces.size());
    for (double steps = 0; steps <= farthest; ++steps)
        for (const double side : {1.0, -1.0})
            if (const Shaft place = moved(side * steps); is_free(place))
                return place;
    return shaft;
}

void RigidSheet::AvoidHead(Point tip, Point along) {
    const Point rear = Minus(tip, Times(along, kHeadLength));
    const Point side = Times(Across(along), kHeadHalfWidth);
    m_placer.AddLine(Minus(rear, side), Plus(rear, side));
    m_placer.AddLine(Minus(rear, side), tip);
    m_placer.AddLine(Plus(rear, side), tip);
}

void RigidSheet::AvoidArc(Point center, double radius, double from, double to) {
    constexpr int kPieces = 18;
    for (int i = 0; i < kPieces; ++i) {
        const double step = (to - from) / kPieces;
        m_placer.AddLine(Plus(center, Times(Toward(from + i * step), radius)),
                         Plus(center, Times(Toward(from + (i + 1) * step), radius)));
    }
}

/// Radius of the outermost couple of a point; 0 without one.
double RigidSheet::OuterRadius(Point point) const {
    double outer = 0;
    for (const Couple& couple : m_couples)
        if (IsSame(couple.center, point))
            outer = std::max(outer, couple.radius);
    return outer;
}

/// Where the arc of a couple ends and its head begins, degrees. The opening looks down unless a line would
/// run through the head.
double RigidSheet::HeadOfCouple(Point point, double sense) const {
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

LabelSpot RigidSheet::AddCouple(Point point, bool is_counterclockwise, text::Color color) {
    const double sense = is_counterclockwise ? 1 : -1;
    const double outer = OuterRadius(point);
    const double radius = outer == 0 ? kCoupleRadius : outer + kCoupleStep;
    const double end = HeadOfCouple(point, sense);
    const double start = end - sense * kCoupleTurn;
    const auto [low, high] = std::minmax(start, end);
    m_canvas.DrawWidth = kWidth;
    m_canvas.Arc(point.x, point.y, radius, low, high, color);
    m_canvas.DrawWidth = 1;

    const Point base = Plus(point, Times(Toward(end), radius));
    const double tangent = end + sense * 90;
    const numeric::ClockReading clock = numeric::ClockOf(CosD(tangent), SinD(tangent));
    m_engine.MoveTo(m_canvas, base.x, base.y, 1);
    m_engine.DrawArrow(m_canvas, {.length = kHeadLength / DrawEng::kPixPerUnit,
                                  .hour = clock.hour,
                                  .angle = clock.angle,
                                  .color = color,
                                  .width = kWidth});
    AvoidArc(point, radius, low, high);
    AvoidHead(Plus(base, Times(Toward(tangent), kHeadLength)), Toward(tangent));
    m_couples.push_back({point, radius});
    return {point, std::nullopt, radius};
}

void RigidSheet::PlaceLabels() {
    for (const SheetLabel& label : m_labels) {
        const LabelSpot& spot = label.spot;
        const Point outward = spot.outward ? *spot.outward : m_placer.FreeSide(spot.anchor);
        m_placer.Place(label.markup, spot.anchor, outward, label.color,
                       std::max(spot.radius, OuterRadius(spot.anchor)));
    }
    m_labels.clear();
}

}  // namespace tavrelo::tools::rigid
