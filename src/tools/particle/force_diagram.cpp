#include "tools/particle/force_diagram.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "drawing/draw_engine.h"
#include "drawing/force_color.h"
#include "drawing/force_words.h"
#include "drawing/label_placer.h"
#include "drawing/words.h"
#include "numeric/angles.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "tools/particle/describe.h"

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
constexpr double kLabelMargin = 1;        // pixels, kept free around a label that is not at its usual place
constexpr double kDefaultDirection = 45;  // degrees, of an unknown direction that nobody was asked for

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
double ScaleOf(std::span<const notation::Force> forces) {
    double largest = 0;
    for (const notation::Force& force : forces)
        largest = std::max(largest, std::abs(force.magnitude.value_or(0)));
    return numeric::NearEq(largest, 0, kNoMagnitude) ? 0 : kLongestArrow / largest;
}

double ArrowLength(const notation::Force& force, double scale) {
    if (!force.magnitude)
        return kUnknownArrow;
    return std::max(std::abs(*force.magnitude) * scale, kShortestArrow);
}

std::string LabelOf(const notation::Force& force, const ForceArrow& arrow) {
    return force.magnitude ? text::RoundedText(*force.magnitude, kLabelDecimals) : arrow.label;
}

/// The direction in which a force is drawn, as the clock reads it.
numeric::ClockReading ReadingOf(const notation::Force& force, const ForceArrow& arrow, double rotation) {
    const double direction =
        arrow.asked_direction.value_or(force.direction.value_or(kDefaultDirection)) + rotation;
    return numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
}

/// An arrow, and from where it is drawn.
struct PlacedArrow {
    drawing::Arrow arrow;
    window::Point pen;
};

std::vector<PlacedArrow> ArrowsOf(const ForcesInView& forces, Middle middle, double rotation) {
    const double scale = ScaleOf(forces.Forces());
    std::vector<PlacedArrow> arrows;
    for (std::size_t i = 0; i < forces.Count(); ++i) {
        const notation::Force& force = forces.Forces()[i];
        const ForceArrow& in_view = forces.Arrows()[i];
        const numeric::ClockReading reading = ReadingOf(force, in_view, rotation);
        arrows.push_back({{.length = ArrowLength(force, scale),
                           .leaves = in_view.leaves,
                           .hour = reading.hour,
                           .angle = reading.angle,
                           .color = drawing::ColorOf(force.knowledge),
                           .label = LabelOf(force, in_view),
                           .width = kArrowWidth},
                          {middle.x + in_view.start.dx, middle.y - in_view.start.dy}});
    }
    return arrows;
}

void AddArrow(drawing::LabelPlacer& placer, const drawing::ArrowPlace& place) {
    placer.AddLine(place.tail, place.tip);
    for (std::size_t i = 0; i < place.head.size(); ++i)
        placer.AddLine(place.head[i], place.head[(i + 1) % place.head.size()]);
}

/// The labels of the arrows, in their order. Each stands at its usual place unless it would cover an arrow or
/// a label there; those that would find the nearest free place once all others stand.
std::vector<drawing::PlacedLabel> LabelsOf(const std::vector<PlacedArrow>& arrows, const Surface& canvas) {
    drawing::LabelPlacer placer(canvas, kLabelMargin);
    std::vector<drawing::ArrowPlace> places;
    for (const PlacedArrow& each : arrows) {
        places.push_back(PlaceOf(each.arrow, each.pen));
        AddArrow(placer, places.back());
    }
    std::vector<std::optional<drawing::PlacedLabel>> usual;
    for (std::size_t i = 0; i < arrows.size(); ++i)
        usual.push_back(placer.PlaceAt(places[i].label, places[i].label_corner, arrows[i].arrow.color));
    std::vector<drawing::PlacedLabel> labels;
    for (std::size_t i = 0; i < arrows.size(); ++i) {
        const window::Point& end = places[i].free_end;
        const window::Point outward{end.x - arrows[i].pen.x, end.y - arrows[i].pen.y};
        labels.push_back(usual[i] ? *usual[i]
                                  : placer.Place(places[i].label, end, outward, arrows[i].arrow.color));
    }
    return labels;
}

void DrawArrows(Surface& canvas, std::vector<PlacedArrow> arrows) {
    const std::vector<drawing::PlacedLabel> labels = LabelsOf(arrows, canvas);
    DrawEng engine;
    for (std::size_t i = 0; i < arrows.size(); ++i) {
        engine.MoveTo(canvas, arrows[i].pen.x, arrows[i].pen.y, 1);
        arrows[i].arrow.label.clear();
        engine.DrawArrow(canvas, arrows[i].arrow);
        PrintLabel(canvas, labels[i]);
    }
}

/// Name, size and direction, below them the components.
std::string TipOf(const ForcesInView& forces, std::size_t index, int decimals) {
    const std::string components = drawing::ComponentsWords(forces.Forces()[index], decimals);
    const std::string words = drawing::AsSentence(DescribeForce(forces, index, decimals));
    return components.empty() ? words : words + "\n" + drawing::AsSentence(components);
}

void AddTips(Surface& canvas, const ForcesInView& forces, const std::vector<PlacedArrow>& arrows,
             int decimals) {
    for (std::size_t i = 0; i < arrows.size(); ++i) {
        const drawing::ArrowPlace place = PlaceOf(arrows[i].arrow, arrows[i].pen);
        canvas.AddTip(window::ArrowTip{place.tail, place.tip, TipOf(forces, i, decimals)});
    }
}

void DrawAxes(Surface& canvas, double rotation) {
    const double cos = numeric::CosD(rotation);
    const double sin = numeric::SinD(rotation);
    DrawAxis(canvas, cos, sin, "X", 4, -2);
    DrawAxis(canvas, -sin, cos, "Y", 6, 4);
}

}  // namespace

void DrawForces(Surface& canvas, const ForcesInView& forces, double rotation, int decimals) {
    canvas.Cls();
    DrawAxes(canvas, rotation);
    if (forces.IsEmpty())
        return canvas.Invite("Escribe la primera fuerza, o elige su dirección en el reloj.");
    DrawOrigin(canvas);
    const std::vector<PlacedArrow> arrows = ArrowsOf(forces, MiddleOf(canvas), rotation);
    DrawArrows(canvas, arrows);
    AddTips(canvas, forces, arrows, decimals);
}

}  // namespace tavrelo::tools::particle
