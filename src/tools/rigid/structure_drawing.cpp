#include "tools/rigid/structure_drawing.h"

#include <algorithm>
#include <cmath>

#include "notation/clock_direction.h"

namespace tavrelo::tools::rigid {
namespace {

using text::Color;
using window::Point;

// Room for an arrow and its label on each side of the structure, pixels; less on a small canvas.
constexpr double kMarginX = 70;
constexpr double kMarginY = 58;
constexpr double kLargestMargin = 0.35;  // part of the canvas

constexpr double kAxisStart = 20;  // pixels that an axis begins before the structure
constexpr double kAxisEnd = 10;    // pixels that it ends before the edge of the canvas
constexpr Color kAxisColor = text::FromBgr(12632256);
constexpr Color kAxisLetterColor = text::Rgb(0x60, 0x60, 0x60);
constexpr Color kConfigColor = text::Rgb(0x40, 0x40, 0x40);  // points while no system is in view
constexpr Color kRestColor = text::Rgb(0xa0, 0xa0, 0xa0);    // points of no system in view

/// What the points and the origin cover along one axis.
struct Extent {
    double low = 0;
    double high = 0;

    double Size() const { return high - low; }
    double Middle() const { return (low + high) / 2; }
};

Extent ExtentOf(const mechanics::rigid::PointTable& points, double mechanics::rigid::PointRecord::*coordinate,
                double unit) {
    Extent extent;
    for (const mechanics::rigid::PointRecord& point : points) {
        extent.low = std::min(extent.low, point.*coordinate / unit);
        extent.high = std::max(extent.high, point.*coordinate / unit);
    }
    return extent;
}

/// The largest coordinate, by which all are divided first: so no difference leaves the range of a double. 1
/// when all are zero.
double UnitOf(const mechanics::rigid::PointTable& points) {
    double largest = 0;
    for (const mechanics::rigid::PointRecord& point : points)
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
    return largest == 0 ? 1 : largest;
}

double Inside(double size, double margin) { return size - 2 * std::min(margin, kLargestMargin * size); }

/// How coordinates become pixels.
struct Fit {
    double unit;
    double scale;  // pixels for one unit
    Point origin;

    /// Whole pixels, for sharp level and upright lines. A hair more, for what arithmetic leaves around a half
    /// must not make them lean.
    Point At(double x, double y) const {
        constexpr double kHair = 1e-6;
        return {std::round(origin.x + x / unit * scale + kHair),
                std::round(origin.y - y / unit * scale + kHair)};
    }
};

/// The larger scale at which both extents fit; the smaller one's own may be infinite.
double ScaleOf(const Extent& across, const Extent& up, double width, double height) {
    if (across.Size() == 0 && up.Size() == 0)
        return 0;
    if (up.Size() * width < across.Size() * height)
        return width / across.Size();
    return height / up.Size();
}

Fit FitTo(const window::Surface& canvas, const mechanics::rigid::PointTable& points) {
    const double unit = UnitOf(points);
    const Extent across = ExtentOf(points, &mechanics::rigid::PointRecord::x, unit);
    const Extent up = ExtentOf(points, &mechanics::rigid::PointRecord::y, unit);
    const double scale =
        ScaleOf(across, up, Inside(canvas.Width(), kMarginX), Inside(canvas.Height(), kMarginY));
    return {unit,
            scale,
            {canvas.Width() / 2 - across.Middle() * scale, canvas.Height() / 2 + up.Middle() * scale}};
}

Point PlaceOf(const mechanics::rigid::PointRecord& point) { return {point.draw_x, point.draw_y}; }

bool HasShown(const mechanics::rigid::ShownDCL& shown) {
    return std::ranges::find(shown, true) != shown.end();
}

/// The colour of the first system in view that holds the point.
Color ColorOf(const mechanics::rigid::PointRecord& point, const RigidScene& scene) {
    if (!HasShown(scene.shown))
        return kConfigColor;
    for (std::size_t i = 0; i < scene.shown.size(); ++i)
        if (scene.shown[i] && scene.systems[i].find(point.name) != std::string::npos)
            return SystemColor(static_cast<int>(i) + 1);
    return kRestColor;
}

/// Both axes from a little before the structure to the edge of the canvas.
void DrawAxes(RigidSheet& sheet, Point origin, const mechanics::rigid::PointTable& points) {
    const double left = std::ranges::min(points, {}, &mechanics::rigid::PointRecord::draw_x).draw_x;
    const double bottom = std::ranges::max(points, {}, &mechanics::rigid::PointRecord::draw_y).draw_y;
    const double width = sheet.Canvas().Width();
    const double height = sheet.Canvas().Height();
    const Point start_x{std::max(std::min(left, origin.x) - kAxisStart, 0.0), origin.y};
    const Point start_y{origin.x, std::min(std::max(bottom, origin.y) + kAxisStart, height)};
    const Point end_x{std::max(width - kAxisEnd, origin.x), origin.y};
    const Point end_y{origin.x, std::min(kAxisEnd, origin.y)};
    sheet.AddAxis(start_x, notation::kHourRight, end_x.x - start_x.x, kAxisColor);
    sheet.AddAxis(start_y, notation::kHourUp, start_y.y - end_y.y, kAxisColor);
    sheet.AddLabel({"X", {end_x, Point{0, 1}}, kAxisLetterColor});
    sheet.AddLabel({"Y", {end_y, Point{1, 0}}, kAxisLetterColor});
}

}  // namespace

void DrawConfig(RigidSheet& sheet, RigidScene& scene) {
    const Fit fit = FitTo(sheet.Canvas(), scene.points);
    for (mechanics::rigid::PointRecord& point : scene.points) {
        const Point place = fit.At(point.x, point.y);
        point.draw_x = static_cast<float>(place.x);
        point.draw_y = static_cast<float>(place.y);
    }
    DrawAxes(sheet, fit.At(0, 0), scene.points);
    for (const mechanics::rigid::PointRecord& point : scene.points) {
        const Color color = ColorOf(point, scene);
        sheet.AddLabel({point.name, sheet.AddPoint(PlaceOf(point), color), color});
    }
}

void DrawChain(RigidSheet& sheet, const mechanics::rigid::PointTable& points,
               const mechanics::rigid::LineRow& line) {
    const mechanics::rigid::PointRecord* before = nullptr;
    for (const std::string& letter : mechanics::rigid::LettersOf(line.chain)) {
        const mechanics::rigid::PointRecord* point = mechanics::rigid::FindPoint(points, letter);
        if (before && point)
            sheet.AddLine(PlaceOf(*before), PlaceOf(*point), SystemColor(line.system));
        before = point;
    }
}

std::size_t DrawLines(RigidSheet& sheet, const RigidScene& scene) {
    const bool all = !HasShown(scene.shown);
    std::size_t count = 0;
    for (const mechanics::rigid::LineRow& line : scene.lines)
        if (all || scene.shown[static_cast<std::size_t>(line.system) - 1]) {
            DrawChain(sheet, scene.points, line);
            ++count;
        }
    return count;
}

}  // namespace tavrelo::tools::rigid
