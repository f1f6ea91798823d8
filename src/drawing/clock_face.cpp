#include "drawing/clock_face.h"

#include <cmath>

#include "drawing/draw_engine.h"
#include "notation/clock_direction.h"
#include "numeric/angles.h"

namespace tavrelo::drawing {
namespace {

using text::Color;

constexpr double kRimRadius = 58;      // pixels
constexpr double kNumeralRadius = 48;  // pixels
constexpr double kArrowLength = 30;    // pixels
constexpr double kDeadRadius = 6;      // around the centre, where a click means no hour
constexpr double kDegreesPerHour = 30;
constexpr Color kRimColor = text::Rgb(0, 0, 128);
constexpr Color kAxisColor = text::Rgb(0xc0, 0xc0, 0xc0);
constexpr Color kArrowColor = text::Rgb(255, 0, 0);

window::Point OnFace(double radius, double degrees) {
    return {kClockRadius + radius * numeric::CosD(degrees), kClockRadius - radius * numeric::SinD(degrees)};
}

/// Where the numeral of an hour stands, in degrees counter-clockwise from the right.
double NumeralDirection(int hour, double rotation) { return 90 - kDegreesPerHour * hour + rotation; }

void DrawNumeral(window::Surface& surface, int hour, double rotation) {
    constexpr double kNumeralSize = 8;
    surface.CurrentFont =
        text::Font{std::string(text::kInterfaceFont), kNumeralSize, notation::IsAxisHour(hour)};
    const std::string numeral = std::to_string(hour);
    const window::Point place = NumeralPlace(hour, rotation);
    surface.CurrentX = place.x - surface.TextWidth(numeral) / 2;
    surface.CurrentY = place.y - surface.TextHeight() / 2;
    surface.Print(numeral);
}

void DrawAxis(window::Surface& surface, double degrees) {
    constexpr double kAxisRadius = 38;
    const window::Point from = OnFace(kAxisRadius, degrees + 180);
    const window::Point to = OnFace(kAxisRadius, degrees);
    surface.Line(from.x, from.y, to.x, to.y, kAxisColor);
}

}  // namespace

void DrawClockFace(window::Surface& surface, int hour, double angle, double rotation) {
    surface.Cls();
    surface.Circle(kClockRadius, kClockRadius, kRimRadius, kRimColor);
    DrawAxis(surface, rotation);
    DrawAxis(surface, rotation + 90);
    for (int numeral = 1; numeral <= notation::kHours; ++numeral)
        DrawNumeral(surface, numeral, rotation);

    const double direction = notation::ClockDir(hour, angle, true) + rotation;
    const numeric::ClockReading reading =
        numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
    surface.CurrentX = kClockRadius;
    surface.CurrentY = kClockRadius;
    DrawEng().DrawArrow(surface, {.length = kArrowLength / DrawEng::kPixPerUnit,
                                  .hour = reading.hour,
                                  .angle = reading.angle,
                                  .color = kArrowColor,
                                  .width = 2});
}

window::Point NumeralPlace(int hour, double rotation) {
    return OnFace(kNumeralRadius, NumeralDirection(hour, rotation));
}

std::optional<int> ClockHourAt(double x, double y, double rotation) {
    const double dx = x - kClockRadius;
    const double dy = y - kClockRadius;
    if (numeric::Hypot(dx, dy) < kDeadRadius)
        return std::nullopt;
    // Turned back with y growing downward, so that the test is made on the face as it stands at rotation 0.
    const double cos = numeric::CosD(rotation);
    const double sin = numeric::SinD(rotation);
    const double direction = numeric::AngleOf(dx * cos - dy * sin, -(dx * sin + dy * cos));
    const int hour = static_cast<int>(std::lround((90 - direction) / kDegreesPerHour));
    return (hour + notation::kHours - 1) % notation::kHours + 1;
}

}  // namespace tavrelo::drawing
