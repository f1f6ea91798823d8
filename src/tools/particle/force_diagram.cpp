#include "tools/particle/force_diagram.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "notation/clock_direction.h"
#include "numeric/angles.h"
#include "numeric/compare.h"
#include "text/number_text.h"

namespace tavrelo::tools::particle {
namespace {

using drawing::DrawEng;
using text::Color;
using window::Surface;

constexpr double kLongestArrow = 5.5;                      // world units
constexpr double kShortestArrow = 0.5;                     // world units
constexpr double kUnknownArrow = kLongestArrow - 0.5 / 2;  // world units
constexpr double kNoMagnitude = 1e-6;                      // largest magnitude that gives no scale
constexpr int kArrowWidth = 2;                             // pixels
constexpr double kOriginRadius = 2;                        // pixels
constexpr Color kOriginColor = text::FromBgr(16711680);
constexpr Color kAxisColor = text::FromBgr(12632256);
constexpr Color kLetterColor = text::Rgb(0x60, 0x60, 0x60);
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
    drawing::PrintLabel(canvas, letter, middle.x + x + dx, middle.y - y - dy, drawing::LabelFont(),
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
double ScaleOf(const mechanics::forces::ForceTable& table) {
    std::vector<double> magnitudes;
    for (const mechanics::forces::ForceRow& row : table)
        if (text::IsNum(row[mechanics::forces::Magnitude]))
            magnitudes.push_back(std::abs(row[mechanics::forces::Magnitude].Number()));
    if (magnitudes.empty())
        return 0;
    const double largest = numeric::MaxArr(magnitudes);
    return numeric::NearEq(largest, 0, kNoMagnitude) ? 0 : kLongestArrow / largest;
}

double ArrowLength(const mechanics::forces::ForceRow& row, double scale) {
    if (!text::IsNum(row[mechanics::forces::Magnitude]))
        return kUnknownArrow;
    return std::max(std::abs(row[mechanics::forces::Magnitude].Number()) * scale, kShortestArrow);
}

std::string LabelOf(const mechanics::forces::ForceRow& row) {
    if (text::IsNum(row[mechanics::forces::Magnitude]))
        return text::RoundedText(row[mechanics::forces::Magnitude].Number(), kLabelDecimals);
    return row[mechanics::forces::ShownMagnitude].Text();
}

void DrawForce(Surface& canvas, DrawEng& engine, const mechanics::forces::ForceRow& row, double scale,
               double rotation) {
    const double direction =
        (text::IsNum(row[mechanics::forces::DrawDirection]) ? row[mechanics::forces::DrawDirection]
                                                            : row[mechanics::forces::Direction])
            .Number() +
        rotation;
    numeric::ClockReading reading = numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
    if (text::IsNum(row[mechanics::forces::Magnitude]) && row[mechanics::forces::Magnitude].Number() < 0)
        reading.hour = notation::OppositeHour(reading.hour);
    engine.MoveTo(canvas, row[mechanics::forces::StartX].Number(),
                  canvas.FromBottom(row[mechanics::forces::StartY].Number()), 1);
    engine.DrawArrow(
        canvas, {.length = ArrowLength(row, scale),
                 .leaves = row[mechanics::forces::LeavesPoint].Number() != notation::kArrives,
                 .hour = reading.hour,
                 .angle = reading.angle,
                 .color = text::FromBgr(static_cast<std::uint32_t>(row[mechanics::forces::Colour].Number())),
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

void DrawForces(Surface& canvas, DrawEng& engine, const mechanics::forces::ForceTable& table,
                double rotation) {
    if (table.empty())
        return;
    const double scale = ScaleOf(table);
    engine.Begin();
    DrawForceAxes(canvas, false, rotation);
    DrawOrigin(canvas);
    for (const mechanics::forces::ForceRow& row : table)
        DrawForce(canvas, engine, row, scale, rotation);
}

}  // namespace tavrelo::tools::particle
