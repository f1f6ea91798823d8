#include "tools/calculator/arrow_drawing.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "drawing/label_placer.h"
#include "notation/clock_direction.h"
#include "numeric/angles.h"
#include "tools/calculator/describe.h"

namespace tavrelo::tools::calculator {
namespace {

using drawing::DrawEng;
using window::Point;

constexpr double kLongest = 5.5;     // world units
constexpr double kAxisLength = 6.5;  // world units, in drawings from the middle
constexpr double kMargin = 30;       // pixels left around a drawing for its labels
constexpr int kResultWidth = 2;      // pixels
constexpr text::Color kAxisColor = text::Rgb(0x80, 0x80, 0x80);
constexpr text::Color kRestColor = text::Rgb(0xc8, 0xc8, 0xc8);  // axes that were left

/// World units for one unit of the vectors: the longest is kLongest. 0 when all are null.
double ArrowScale(std::span<const DrawnVector> vectors) {
    double longest = 0;
    for (const DrawnVector& vector : vectors)
        longest = std::max(longest, numeric::Hypot(vector.x, vector.y));
    return longest == 0 ? 0 : numeric::CheckedDivide(kLongest, longest);
}

/// One drawing of arrows: draws the shafts first and places the labels when all lines are known.
class ArrowDrawing {
  public:
    explicit ArrowDrawing(RoutineRun& run)
        : m_engine(run.engine), m_surface(run.Picture()), m_labels(m_surface) {
        m_surface.Cls();
        m_engine.Begin();
    }

    window::Surface& Surface() { return m_surface; }

    /// `length` in world units. A null arrow leaves only its label.
    void AddArrow(Point from, double x, double y, double length, const std::string& label, text::Color color,
                  int width = 1) {
        const double norm = numeric::Hypot(x, y);
        const Point direction = norm == 0 ? Point{0, 0} : Point{x / norm, -y / norm};
        const double pixels = length * DrawEng::kPixPerUnit;
        const Point tip{from.x + pixels * direction.x, from.y + pixels * direction.y};
        if (norm > 0) {
            const numeric::ClockReading clock = numeric::ClockOf(x / norm, y / norm);
            m_engine.MoveTo(m_surface, from.x, from.y, 1);
            m_engine.DrawArrow(
                m_surface,
                {.length = length, .hour = clock.hour, .angle = clock.angle, .color = color, .width = width});
            m_labels.AddLine(from, tip);
        }
        m_pending.push_back({label, tip, direction, color});
    }

    void AddLine(Point from, Point to, text::Color color) {
        m_surface.Line(from.x, from.y, to.x, to.y, color);
        m_labels.AddLine(from, to);
    }

    /// A line that was drawn already.
    void Avoid(Point from, Point to) { m_labels.AddLine(from, to); }

    void AddLabel(const std::string& label, Point anchor, Point outward, text::Color color) {
        m_pending.push_back({label, anchor, outward, color});
    }

    void PlaceLabels() {
        for (const Pending& label : m_pending)
            drawing::PrintLabel(m_surface,
                                m_labels.Place(label.markup, label.anchor, label.outward, label.color));
    }

  private:
    struct Pending {
        std::string markup;
        Point anchor;
        Point outward;
        text::Color color;
    };

    DrawEng& m_engine;
    window::Surface& m_surface;
    drawing::LabelPlacer m_labels;
    std::vector<Pending> m_pending;
};

int WidthOf(const DrawnVector& vector) { return vector.color == kResultColor ? kResultWidth : 1; }

/// Where everything goes: pixels for one unit of length, and the pixel of the origin.
struct Placing {
    double scale;
    Point origin;

    Point At(numeric::Point point) const { return {origin.x + point.x * scale, origin.y - point.y * scale}; }
};

/// An extent along one axis, in pixels from the origin, at a scale.
struct Extent {
    double low = 0;
    double high = 0;
    void Take(double value) {
        low = std::min(low, value);
        high = std::max(high, value);
    }
    double Size() const { return high - low; }
};

/// The extents of the origin, the points and the tips.
std::pair<Extent, Extent> ExtentsAt(double scale, std::span<const DrawnVector> vectors,
                                    double pixels_per_force) {
    Extent across, up;
    for (const DrawnVector& vector : vectors) {
        const double x = vector.from.x * scale;
        const double y = vector.from.y * scale;
        across.Take(x);
        across.Take(x + vector.x * pixels_per_force);
        up.Take(y);
        up.Take(y + vector.y * pixels_per_force);
    }
    return {across, up};
}

Placing PlaceAll(const window::Surface& surface, std::span<const DrawnVector> vectors,
                 double pixels_per_force) {
    const double width = surface.Width() - 2 * kMargin;
    const double height = surface.Height() - 2 * kMargin;
    double farthest = 0;
    for (const DrawnVector& vector : vectors)
        farthest = std::max({farthest, std::abs(vector.from.x), std::abs(vector.from.y)});
    // The largest scale that fits lies below the one at which the farthest point alone fills the picture.
    double low = 0;
    double high = farthest == 0 ? 1 : numeric::CheckedDivide(std::max(width, height), farthest);
    constexpr int kHalvings = 40;
    for (int k = 0; k < kHalvings; ++k) {
        const double middle = (low + high) / 2;
        const auto [across, up] = ExtentsAt(middle, vectors, pixels_per_force);
        (across.Size() <= width && up.Size() <= height ? low : high) = middle;
    }
    const auto [across, up] = ExtentsAt(low, vectors, pixels_per_force);
    return {
        low,
        {kMargin + (width - across.Size()) / 2 - across.low, kMargin + (height - up.Size()) / 2 + up.high}};
}

void AddVectors(ArrowDrawing& drawing, const Placing& placing, std::span<const DrawnVector> vectors,
                double arrow_scale) {
    for (const DrawnVector& vector : vectors)
        drawing.AddArrow(placing.At(vector.from), vector.x, vector.y,
                         numeric::Hypot(vector.x, vector.y) * arrow_scale, vector.label, vector.color,
                         WidthOf(vector));
}

/// Who points at one of the vectors is told its words.
template <class Telling>
void AddTips(window::Surface& surface, const Placing& placing, const std::vector<DrawnVector>& vectors,
             double arrow_scale, Telling tell) {
    const double pixels = arrow_scale * DrawEng::kPixPerUnit;
    for (const DrawnVector& vector : vectors) {
        const Point from = placing.At(vector.from);
        surface.AddTip(
            window::ArrowTip{from, {from.x + vector.x * pixels, from.y - vector.y * pixels}, tell(vector)});
    }
}

void AddCenterAxes(ArrowDrawing& drawing, Point center, const AxesTurn& turn) {
    const double pixels = kAxisLength * DrawEng::kPixPerUnit;
    if (turn.turned) {
        drawing.AddLine(center, {center.x + pixels, center.y}, kRestColor);
        drawing.AddLine(center, {center.x, center.y - pixels}, kRestColor);
        drawing.AddLabel("X", {center.x + pixels, center.y}, {1, 0}, kAxisColor);
        drawing.AddLabel("Y", {center.x, center.y - pixels}, {0, -1}, kAxisColor);
    }
    const double cos = numeric::CosD(turn.degrees);
    const double sin = numeric::SinD(turn.degrees);
    const std::string prime = turn.turned ? "'" : "";
    drawing.AddArrow(center, cos, sin, kAxisLength, "X" + prime, kAxisColor);
    drawing.AddArrow(center, -sin, cos, kAxisLength, "Y" + prime, kAxisColor);
}

}  // namespace

void DrawFromCenter(RoutineRun& run, const std::vector<DrawnVector>& vectors, AxesTurn turn) {
    const double arrow_scale = ArrowScale(vectors);
    ArrowDrawing drawing(run);
    const Point center{drawing.Surface().Width() / 2, drawing.Surface().Height() / 2};
    AddCenterAxes(drawing, center, turn);
    AddVectors(drawing, {1, center}, vectors, arrow_scale);
    drawing.PlaceLabels();
    drawing.Surface().Describe(DescribeFromCenter(vectors, turn, run.decimals));
    AddTips(drawing.Surface(), {1, center}, vectors, arrow_scale,
            [&](const DrawnVector& vector) { return DescribeVector(vector, run.decimals); });
}

void DrawAtPoints(RoutineRun& run, const std::vector<DrawnVector>& vectors) {
    const double arrow_scale = ArrowScale(vectors);
    ArrowDrawing drawing(run);
    const Placing placing = PlaceAll(drawing.Surface(), vectors, arrow_scale * DrawEng::kPixPerUnit);
    const Point origin = placing.origin;
    run.engine.DrawAxes(drawing.Surface(), origin.x, origin.y);
    drawing.Avoid(origin, {drawing.Surface().Width(), origin.y});
    drawing.Avoid(origin, {origin.x, 0});
    AddVectors(drawing, placing, vectors, arrow_scale);
    drawing.PlaceLabels();
    drawing.Surface().Describe(DescribeAtPoints(vectors, run.decimals));
    AddTips(drawing.Surface(), placing, vectors, arrow_scale,
            [&](const DrawnVector& vector) { return DescribeVector(vector, run.decimals); });
}

void DrawVerticalForces(RoutineRun& run, const std::vector<DrawnVector>& forces) {
    constexpr double kDepthX = 0.4;  // of a length along y, seen from aside
    constexpr double kDepthY = 0.3;
    std::vector<DrawnVector> seen = forces;
    for (DrawnVector& force : seen)
        force.from = {force.from.x + kDepthX * force.from.y, kDepthY * force.from.y};
    const double arrow_scale = ArrowScale(seen);
    ArrowDrawing drawing(run);
    const Placing placing = PlaceAll(drawing.Surface(), seen, arrow_scale * DrawEng::kPixPerUnit);
    drawing.AddArrow(placing.origin, 1, 0, kAxisLength, "X", kAxisColor);
    drawing.AddArrow(placing.origin, kDepthX, kDepthY, kAxisLength, "Y", kAxisColor);
    drawing.AddArrow(placing.origin, 0, 1, kAxisLength, "Z", kAxisColor);
    AddVectors(drawing, placing, seen, arrow_scale);
    drawing.PlaceLabels();
    drawing.Surface().Describe(DescribeVerticalForces(forces, run.decimals));
    AddTips(drawing.Surface(), placing, seen, arrow_scale,
            [&](const DrawnVector& force) { return DescribeVerticalForce(force, run.decimals); });
}

}  // namespace tavrelo::tools::calculator
