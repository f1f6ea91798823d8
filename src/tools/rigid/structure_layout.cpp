#include "tools/rigid/structure_layout.h"

#include <algorithm>
#include <cmath>

#include "notation/clock_direction.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::LineRow;
using mechanics::rigid::PointRecord;
using mechanics::rigid::PointTable;

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

Extent ExtentOf(const PointTable& points, double PointRecord::*coordinate, double unit) {
    Extent extent;
    for (const PointRecord& point : points) {
        extent.low = std::min(extent.low, point.*coordinate / unit);
        extent.high = std::max(extent.high, point.*coordinate / unit);
    }
    return extent;
}

/// The largest coordinate, by which all are divided first: so no difference leaves the range of a double. 1
/// when all are zero.
double UnitOf(const PointTable& points) {
    double largest = 0;
    for (const PointRecord& point : points)
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

Fit FitTo(CanvasSize size, const PointTable& points) {
    const double unit = UnitOf(points);
    const Extent across = ExtentOf(points, &PointRecord::x, unit);
    const Extent up = ExtentOf(points, &PointRecord::y, unit);
    const double scale = ScaleOf(across, up, Inside(size.width, kMarginX), Inside(size.height, kMarginY));
    return {unit, scale, {size.width / 2 - across.Middle() * scale, size.height / 2 + up.Middle() * scale}};
}

bool HasShown(const DiagramView& view) { return std::ranges::find(view.shown, true) != view.shown.end(); }

/// The colour of the first system in view that holds the point.
Color ColorOf(std::string_view point, const RigidScene& scene) {
    if (!HasShown(scene.view))
        return kConfigColor;
    for (int system = 1; system <= mechanics::rigid::kSystems; ++system)
        if (scene.view.IsShown(system) &&
            scene.problem.LettersOfSystem(system).find(point) != std::string_view::npos)
            return SystemColor(system);
    return kRestColor;
}

/// Both axes from a little before the structure to the edge of the canvas.
void AddAxes(DiagramLayout& layout, const PointPlaces& places) {
    const Point origin = places.origin;
    double left = origin.x;
    double bottom = origin.y;
    for (const auto& [name, place] : places.points) {
        left = std::min(left, place.x);
        bottom = std::max(bottom, place.y);
    }
    const auto [width, height] = layout.Size();
    const Point start_x{std::max(left - kAxisStart, 0.0), origin.y};
    const Point start_y{origin.x, std::min(bottom + kAxisStart, height)};
    const Point end_x{std::max(width - kAxisEnd, origin.x), origin.y};
    const Point end_y{origin.x, std::min(kAxisEnd, origin.y)};
    layout.AddAxis(start_x, notation::kHourRight, end_x.x - start_x.x, kAxisColor);
    layout.AddAxis(start_y, notation::kHourUp, start_y.y - end_y.y, kAxisColor);
    layout.AddLabel({"X", {end_x, Point{0, 1}}, kAxisLetterColor});
    layout.AddLabel({"Y", {end_y, Point{1, 0}}, kAxisLetterColor});
}

}  // namespace

std::optional<Point> PointPlaces::Find(std::string_view name) const {
    const auto found = std::ranges::find(points, name, &Entry::name);
    if (found == points.end())
        return {};
    return found->place;
}

PointPlaces PlacesOf(const PointTable& points, CanvasSize size) {
    const Fit fit = FitTo(size, points);
    PointPlaces places{{}, fit.At(0, 0)};
    for (const PointRecord& point : points)
        places.points.push_back({point.name, fit.At(point.x, point.y)});
    return places;
}

void AddStructure(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places) {
    AddAxes(layout, places);
    for (const auto& [name, place] : places.points) {
        const Color color = ColorOf(name, scene);
        layout.AddLabel({name, layout.AddPoint(place, color), color});
    }
}

void AddChain(DiagramLayout& layout, const PointPlaces& places, const LineRow& line) {
    std::optional<Point> before;
    for (const std::string& letter : mechanics::rigid::LettersOf(line.chain)) {
        const std::optional<Point> point = places.Find(letter);
        if (before && point)
            layout.AddLine(*before, *point, SystemColor(line.system));
        before = point;
    }
}

std::size_t AddLines(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places) {
    const bool all = !HasShown(scene.view);
    std::size_t count = 0;
    for (const LineRow& line : scene.problem.lines)
        if (all || scene.view.IsShown(line.system)) {
            AddChain(layout, places, line);
            ++count;
        }
    return count;
}

}  // namespace tavrelo::tools::rigid
