#include "statics/force_diagram.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "numeric/angles.h"
#include "numeric/compare.h"
#include "numeric/number_text.h"
#include "vectors/clock_direction.h"

namespace tavrelo::statics {
namespace {

using shell::Color;
using shell::Surface;
using vectors::DrawEng;

constexpr double kLongestArrow = 5.5;                      // world units
constexpr double kShortestArrow = 0.5;                     // world units
constexpr double kUnknownArrow = kLongestArrow - 0.5 / 2;  // world units
constexpr double kNoMagnitude = 1e-6;                      // largest magnitude that gives no scale
constexpr int kArrowWidth = 2;                             // pixels
constexpr double kOriginRadius = 2;                        // pixels
constexpr Color kOriginColor = shell::FromBgr(16711680);
constexpr Color kAxisColor = shell::FromBgr(12632256);
constexpr Color kLetterColor = shell::Rgb(0x60, 0x60, 0x60);
constexpr int kLabelDecimals = 2;

struct Middle {
    double x;
    double y;
};

Middle MiddleOf(const Surface& canvas) { return {canvas.Width() / 2, canvas.Height() / 2}; }

/// Half the length of both axes in pixels: the height less half a world unit.
double HalfAxis(const Surface& canvas) {
    return (canvas.Height() / DrawEng::kPixPerUnit - 0.5) * DrawEng::kPixPerUnit / 2;
}

/// One axis through the middle along (cos, sin); its letter stands at the positive end, `dx` and `dy`
/// (upward) off it.
void DrawAxis(Surface& canvas, double cos, double sin, const char* letter, double dx, double dy) {
    const Middle middle = MiddleOf(canvas);
    const double x = HalfAxis(canvas) * cos;
    const double y = HalfAxis(canvas) * sin;
    canvas.Line(middle.x - x, middle.y + y, middle.x + x, middle.y - y, kAxisColor);
    vectors::PrintLabel(canvas, letter, middle.x + x + dx, middle.y - y - dy, vectors::LabelFont(),
                        kLetterColor);
}

void DrawOrigin(Surface& canvas) {
    const Middle middle = MiddleOf(canvas);
    canvas.Filled = true;
    canvas.FillColor = kOriginColor;
    canvas.Circle(middle.x, middle.y, kOriginRadius, kOriginColor);
    canvas.Filled = false;
}

/// World units for each unit of magnitude; 0 when no force has a magnitude to speak of.
double ScaleOf(const ForceTable& table) {
    std::vector<double> magnitudes;
    for (const ForceRow& row : table)
        if (numeric::IsNum(row[Magnitude]))
            magnitudes.push_back(std::abs(row[Magnitude].Number()));
    if (magnitudes.empty())
        return 0;
    const double largest = numeric::MaxArr(magnitudes);
    return numeric::NearEq(largest, 0, kNoMagnitude) ? 0 : kLongestArrow / largest;
}

double ArrowLength(const ForceRow& row, double scale) {
    if (!numeric::IsNum(row[Magnitude]))
        return kUnknownArrow;
    return std::max(std::abs(row[Magnitude].Number()) * scale, kShortestArrow);
}

std::string LabelOf(const ForceRow& row) {
    if (numeric::IsNum(row[Magnitude]))
        return numeric::RoundedText(row[Magnitude].Number(), kLabelDecimals);
    return row[ShownMagnitude].Text();
}

void DrawForce(Surface& canvas, DrawEng& engine, const ForceRow& row, double scale, double rotation) {
    const double direction =
        (numeric::IsNum(row[DrawDirection]) ? row[DrawDirection] : row[Direction]).Number() + rotation;
    numeric::ClockReading reading = numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
    if (numeric::IsNum(row[Magnitude]) && row[Magnitude].Number() < 0)
        reading.hour = vectors::OppositeHour(reading.hour);
    engine.MoveTo(canvas, row[StartX].Number(), canvas.FromBottom(row[StartY].Number()), 1);
    engine.DrawArrow(canvas, {.length = ArrowLength(row, scale),
                              .leaves = row[LeavesPoint].Number() != vectors::kArrives,
                              .hour = reading.hour,
                              .angle = reading.angle,
                              .color = shell::FromBgr(static_cast<std::uint32_t>(row[Colour].Number())),
                              .label = LabelOf(row),
                              .width = kArrowWidth});
}

}  // namespace

void DrawForceAxes(Surface& canvas, bool keep, double rotation) {
    if (!keep)
        canvas.Cls();
    const double cos = numeric::CosD(rotation);
    const double sin = numeric::SinD(rotation);
    DrawAxis(canvas, cos, sin, "X", 4, -2);
    DrawAxis(canvas, -sin, cos, "Y", 6, 4);
}

void DrawForces(Surface& canvas, DrawEng& engine, const ForceTable& table, double rotation) {
    if (table.empty())
        return;
    const double scale = ScaleOf(table);
    engine.Begin();
    DrawForceAxes(canvas, false, rotation);
    DrawOrigin(canvas);
    for (const ForceRow& row : table)
        DrawForce(canvas, engine, row, scale, rotation);
}

}  // namespace tavrelo::statics
