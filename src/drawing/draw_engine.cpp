#include "drawing/draw_engine.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/print_markup.h"
#include "notation/clock_direction.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

using numeric::kHalfPi;
using numeric::kPi;
using numeric::kRadiansPerDegree;
using text::Color;
using window::Point;
using window::Surface;

constexpr double kThreeHalfPi = 9.42477796076937 / 2;
constexpr Color kAxisColor = text::Rgb(0x80, 0x80, 0x80);

/// Where an hour's angle begins and in which sense it grows.
struct HourBase {
    double radians;
    int sign;
};
constexpr std::array<HourBase, notation::kHours> kHourBases = {{
    {kHalfPi, -1},       // 1
    {0, 1},              // 2
    {0, 1},              // 3
    {0, -1},             // 4
    {kThreeHalfPi, 1},   // 5
    {kThreeHalfPi, 1},   // 6
    {kThreeHalfPi, -1},  // 7
    {kPi, 1},            // 8
    {kPi, 1},            // 9
    {kPi, -1},           // 10
    {kHalfPi, 1},        // 11
    {kHalfPi, 1},        // 12
}};

/// Top left corner of a label relative to the free end of its arrow: part of the label's width and height,
/// then pixels.
struct LabelPlace {
    double widths;
    double heights;
    double dx;
    double dy;
};
constexpr std::array<LabelPlace, notation::kHours> kLabelPlaces = {{
    {0, -1, 0, -4},     // 1
    {0, -0.5, 4, 0},    // 2
    {-1, -1, 0, -4},    // 3
    {0, -0.5, 4, 0},    // 4
    {0, 0, 0, 4},       // 5
    {0, -1, 4, 0},      // 6
    {-1, 0, 0, 4},      // 7
    {-1, -0.5, -4, 0},  // 8
    {0, -1, 0, -4},     // 9
    {-1, -0.5, -4, 0},  // 10
    {-1, -1, 0, -4},    // 11
    {0, 0, 4, 0},       // 12
}};

std::size_t Slot(int hour) {
    if (hour < 1 || hour > notation::kHours)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "clock hour");
    return static_cast<std::size_t>(hour - 1);
}

/// Halves up; a hair more, for what trigonometry leaves behind a half must not make an upright arrow lean.
double WholePixel(double place) {
    constexpr double kHair = 1e-9;
    return std::floor(place + 0.5 + kHair);
}

/// The head behind a tip: two rear points beside the shaft, whose direction is (cos, -sin) on the picture.
std::vector<Point> HeadAt(Point tip, double cos, double sin, int width) {
    const double length = 2 * width + 1;
    const double half = width + 1;
    const Point along{cos, -sin};
    const Point across{-along.y, along.x};
    const auto rear = [&](double side) {
        return Point{WholePixel(tip.x - length * along.x + side * half * across.x),
                     WholePixel(tip.y - length * along.y + side * half * across.y)};
    };
    return {{WholePixel(tip.x), WholePixel(tip.y)}, rear(1), rear(-1)};
}

std::string WithoutSign(const std::string& label) { return label.starts_with('-') ? label.substr(1) : label; }

/// Top left corner of a label at the free end of an arrow whose outward direction has that hour.
Point LabelCorner(const std::string& label, Point free_end, int octant) {
    const text::Font font = LabelFont();
    const LabelPlace& place = kLabelPlaces[Slot(octant)];
    return {free_end.x + place.widths * text::MarkupWidth(label, font) + place.dx,
            free_end.y + place.heights * text::TextHeight(font) + place.dy};
}

/// Radians of a clock hour and the degrees from its axis.
double DirectionOf(int hour, double angle) {
    const HourBase& base = kHourBases[Slot(hour)];
    return base.radians + base.sign * angle * kRadiansPerDegree;
}

}  // namespace

text::Font LabelFont() {
    constexpr double kLabelSize = 8;
    return text::Font{std::string(text::kSmallFont), kLabelSize};
}

void PrintLabel(Surface& surface, const std::string& markup, double x, double y, const text::Font& font,
                Color color) {
    const double right = surface.Width() - text::MarkupWidth(markup, font);
    const double bottom = surface.Height() - text::TextHeight(font);
    const text::Font kept_font = surface.CurrentFont;
    const Color kept_color = surface.ForeColor;
    surface.CurrentFont = font;
    surface.ForeColor = color;
    // A label wider than the picture keeps its beginning in view.
    drawing::PrintMarkup(surface, markup, std::max(0.0, std::min(x, right)),
                         surface.FromBottom(std::max(0.0, std::min(y, bottom))));
    surface.CurrentFont = kept_font;
    surface.ForeColor = kept_color;
}

ArrowPlace PlaceOf(const Arrow& arrow, Point pen) {
    const double direction = DirectionOf(arrow.hour, arrow.angle);
    const double cos = std::cos(direction);
    const double sin = std::sin(direction);
    const double length = arrow.length * DrawEng::kPixPerUnit;
    const double outward = arrow.leaves ? 1 : -1;
    const Point end{pen.x + outward * length * cos, pen.y - outward * length * sin};
    ArrowPlace place;
    place.tail = arrow.leaves ? pen : end;
    place.tip = arrow.leaves ? end : pen;
    place.free_end = end;
    place.head = HeadAt(place.tip, cos, sin, arrow.width);
    place.label = WithoutSign(arrow.label);
    place.label_corner = LabelCorner(place.label, end, numeric::ClockOf(outward * cos, outward * sin).hour);
    return place;
}

void DrawEng::MoveTo(Surface& surface, double x, double y, double scale) const {
    surface.CurrentX = x * scale;
    surface.CurrentY = y * scale;
}

void DrawEng::MoveBy(Surface& surface, double dx, double dy, double scale) {
    m_pen_x += dx * scale;
    m_pen_y += dy * scale;
    surface.CurrentX = m_pen_x;
    surface.CurrentY = m_pen_y;
}

void DrawEng::ClearPen() {
    m_pen_x = 0;
    m_pen_y = 0;
}

void DrawEng::SetDirection(int hour, double angle) {
    const double direction = DirectionOf(hour, angle);
    m_hour = hour;
    m_cos = std::cos(direction);
    m_sin = std::sin(direction);
}

void DrawEng::DrawArrow(Surface& surface, const Arrow& arrow) {
    SetDirection(arrow.hour, arrow.angle);
    const ArrowPlace place = PlaceOf(arrow, {surface.CurrentX, surface.CurrentY});
    surface.DrawWidth = arrow.width;
    surface.Line(place.tail.x, place.tail.y, place.tip.x, place.tip.y, arrow.color);
    surface.DrawWidth = 1;
    surface.FillColor = arrow.color;
    surface.Polygon(place.head);
    if (!place.label.empty())
        PrintLabel(surface, place.label, place.label_corner.x, place.label_corner.y, LabelFont(),
                   arrow.color);
    m_pen_x = place.tip.x;
    m_pen_y = place.tip.y;
    if (arrow.registered)
        RegisterShape("Flecha", place.tail.x, place.tail.y, place.tip.x, place.tip.y);
}

void DrawEng::DrawLine(Surface& surface, double length, int hour, double angle, Color color) {
    SetDirection(hour, angle);
    const double x1 = surface.CurrentX;
    const double y1 = surface.CurrentY;
    const double x2 = x1 + length * kPixPerUnit * m_cos;
    const double y2 = y1 - length * kPixPerUnit * m_sin;
    surface.Line(x1, y1, x2, y2, color);
    RegisterShape("Linea", x1, y1, x2, y2);
}

void DrawEng::DrawAxes(Surface& surface, double x, double y) {
    constexpr double kYLength = 15;    // world units
    constexpr double kXLength = 15.5;  // world units
    constexpr double kLetterGap = 8;   // pixels
    constexpr double kLetterDrop = 15;
    const auto draw = [&](double length, int hour) {
        MoveTo(surface, x, y, 1);
        DrawArrow(surface, {.length = length, .hour = hour, .color = kAxisColor, .registered = false});
    };
    draw(kYLength, notation::kHourUp);
    PrintLabel(surface, "Y", m_pen_x + kLetterGap, m_pen_y, LabelFont(), kAxisColor);
    draw(kXLength, notation::kHourRight);
    PrintLabel(surface, "X", m_pen_x - kLetterGap, m_pen_y + kLetterDrop, LabelFont(), kAxisColor);
}

void DrawEng::RegisterShape(const std::string& name, double x1, double y1, double x2, double y2) {
    ++m_shape_number;
    m_shapes.push_back({std::to_string(m_shape_number) + "-" + name, x1, y1, x2, y2, m_hour});
}

void DrawEng::Begin() {
    m_shapes.clear();
    m_shape_number = 0;
    ClearPen();
}

}  // namespace tavrelo::drawing
