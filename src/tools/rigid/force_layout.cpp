#include "tools/rigid/force_layout.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "drawing/force_color.h"
#include "notation/clock_direction.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyForce;
using mechanics::rigid::Couple;
using notation::Force;
using notation::ForceRecord;
using text::Color;
using window::Point;

constexpr double kNoComponent = 1e-8;  // largest component that is not drawn

/// An arrow that a row asks for.
struct ForceArrow {
    ArrowSense sense;
    Color color;
    std::string label;
};

std::string SizeText(double number, int decimals) { return text::RoundedText(std::abs(number), decimals); }

std::string WithoutSign(const std::string& text) { return text.starts_with('-') ? text.substr(1) : text; }

/// The arrow along one axis of a force that is drawn by its components; its label carries no sign, so the
/// arrow does.
struct ComponentArrow {
    notation::ForceComponent Force::*component;
    int positive_hour;
};
constexpr ComponentArrow kComponentArrows[] = {{&Force::x, notation::kHourRight},
                                               {&Force::y, notation::kHourUp}};

Color ColorOf(const notation::ForceComponent& component) {
    if (!component.number)
        return drawing::kUnknownColor;
    return component.unknown.IsNone() ? drawing::kGivenColor : drawing::kFoundColor;
}

void AddComponent(std::vector<ForceArrow>& arrows, const ForceRecord& record, const ComponentArrow& axis,
                  int decimals) {
    const notation::ForceComponent& component = record.force.*axis.component;
    const double number = component.number.value_or(component.coefficient);
    if (component.number && numeric::NearEq(number, 0, kNoComponent))
        return;
    const int hour = number < 0 ? notation::OppositeHour(axis.positive_hour) : axis.positive_hour;
    arrows.push_back({{hour, 0, record.leaves},
                      ColorOf(component),
                      component.number ? SizeText(number, decimals)
                                       : text::SymbolMarkup(number, component.unknown.magnitude, decimals)});
}

/// A force given by components shows these while one of them is unknown.
bool IsDrawnByComponents(const ForceRecord& record) {
    return !record.force.HasComponents() && !record.force.x.unknown.HasAngle() &&
           (record.code == notation::kComponents || !record.clock);
}

/// The clock reading of a force; of the direction that the user wants, or of the default one, while its own
/// is unknown.
numeric::ClockReading ReadingOf(const ForceRecord& record, std::optional<double> wanted) {
    if (record.clock)
        return *record.clock;
    const double direction = wanted.value_or(kDefaultDrawDirection);
    return numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
}

ForceArrow WholeArrow(const ForceRecord& record, std::optional<double> wanted, int decimals) {
    const std::optional<double>& magnitude = record.force.magnitude;
    numeric::ClockReading reading = ReadingOf(record, wanted);
    if (magnitude && *magnitude < 0)
        reading.hour = notation::OppositeHour(reading.hour);
    return {{reading.hour, reading.angle, record.leaves},
            drawing::ColorOf(record.force.knowledge),
            magnitude ? SizeText(*magnitude, decimals) : WithoutSign(record.label)};
}

std::vector<ForceArrow> ArrowsOf(const ForceRecord& record, std::optional<double> wanted, int decimals) {
    std::vector<ForceArrow> arrows;
    if (!IsDrawnByComponents(record))
        return {WholeArrow(record, wanted, decimals)};
    for (const ComponentArrow& axis : kComponentArrows)
        AddComponent(arrows, record, axis, decimals);
    return arrows;
}

bool IsCounterclockwise(const Couple& couple) { return couple.value.value_or(couple.sign) >= 0; }

std::string LabelOf(const Couple& couple, int decimals) {
    return couple.IsKnown() ? SizeText(*couple.value, decimals)
                            : text::SymbolMarkup(1, couple.symbol, decimals);
}

/// A force in view and where its point stands.
struct SeenForce {
    const BodyForce& row;
    std::optional<double> wanted;  // direction
    Point place;
};

std::vector<SeenForce> ForcesInView(const RigidScene& scene, const PointPlaces& places) {
    std::vector<SeenForce> seen;
    for (std::size_t i = 0; i < scene.problem.forces.size(); ++i) {
        const BodyForce& row = scene.problem.forces[i];
        const std::optional<Point> place = places.Find(row.point);
        if (place && scene.view.IsShown(row.body))
            seen.push_back({row, scene.view.DirectionOf(i), *place});
    }
    return seen;
}

using RowLabels = std::vector<WantedLabel>;

RowLabels AddForce(DiagramLayout& layout, const SeenForce& force, int decimals) {
    RowLabels labels;
    if (force.row.force)
        for (const ForceArrow& arrow : ArrowsOf(*force.row.force, force.wanted, decimals))
            labels.push_back(
                {arrow.label, layout.AddForce(force.place, arrow.sense, arrow.color), arrow.color});
    return labels;
}

WantedLabel AddCouple(DiagramLayout& layout, Point place, const Couple& couple, int decimals) {
    const Color color = couple.IsKnown() ? drawing::kGivenColor : drawing::kUnknownColor;
    return {LabelOf(couple, decimals), layout.AddCouple(place, IsCounterclockwise(couple), color), color};
}

}  // namespace

bool NeedsDrawDirection(const BodyForce& force) {
    return force.force && force.force->force.x.unknown.HasAngle();
}

void AddForces(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places) {
    const std::vector<SeenForce> seen = ForcesInView(scene, places);
    std::vector<RowLabels> labels;
    for (const SeenForce& force : seen)
        labels.push_back(AddForce(layout, force, scene.decimals));
    // A couple turns its head away from the arrows of all rows.
    for (std::size_t i = 0; i < seen.size(); ++i)
        if (const std::optional<Couple>& couple = seen[i].row.couple)
            labels[i].push_back(AddCouple(layout, seen[i].place, *couple, scene.decimals));
    for (const RowLabels& of_row : labels)
        for (const WantedLabel& label : of_row)
            layout.AddLabel(label);
}

}  // namespace tavrelo::tools::rigid
