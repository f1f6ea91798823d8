#include "tools/rigid/force_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "mechanics/forces/unknowns.h"
#include "notation/clock_direction.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::tools::rigid {
namespace {

namespace forces = mechanics::forces;
using mechanics::rigid::BodyForce;
using mechanics::rigid::Couple;
using text::Color;
using window::Point;

constexpr double kNoComponent = 1e-8;  // largest component that is not drawn
constexpr Color kKnownColor = text::kBlack;
constexpr Color kUnknownColor = text::Rgb(255, 0, 0);

/// An arrow that a row asks for.
struct ForceArrow {
    ArrowSense sense;
    Color color;
    std::string label;
};

Color ColorOf(int colour) { return text::FromBgr(static_cast<std::uint32_t>(colour)); }

std::string SizeText(double number, int decimals) { return text::RoundedText(std::abs(number), decimals); }

bool Leaves(const forces::ForceRow& row) { return row[forces::LeavesPoint].Number() != forces::kArrives; }

std::string WithoutSign(const std::string& text) { return text.starts_with('-') ? text.substr(1) : text; }

/// The arrow along one axis of a force that is drawn by its components; its label carries no sign, so the
/// arrow does.
struct ComponentArrow {
    const forces::ComponentColumns& columns;
    int positive_hour;
};
constexpr ComponentArrow kComponentArrows[] = {{forces::kXColumns, notation::kHourRight},
                                               {forces::kYColumns, notation::kHourUp}};

void AddComponent(std::vector<ForceArrow>& arrows, const forces::ForceRow& row, const ComponentArrow& axis,
                  int decimals) {
    const text::Value& component = row[axis.columns.component];
    const std::string unknown = row[axis.columns.unknown].Text();
    const bool is_known = text::IsNum(component);
    const double number = (is_known ? component : row[axis.columns.coefficient]).Number();
    if (is_known && numeric::NearEq(number, 0, kNoComponent))
        return;
    const int known_colour = unknown.empty() ? forces::kKnown : forces::kSolved;
    arrows.push_back(
        {{number < 0 ? notation::OppositeHour(axis.positive_hour) : axis.positive_hour, 0, Leaves(row)},
         ColorOf(is_known ? known_colour : forces::kUnknown),
         is_known ? SizeText(number, decimals) : text::SymbolMarkup(number, unknown, decimals)});
}

bool HasUnknownDirection(const forces::ForceRow& row) {
    return forces::ReadUnknown(row[forces::XUnknown].Text()).HasAngle();
}

/// A force given by components shows these while one of them is unknown.
bool IsDrawnByComponents(const forces::ForceRow& row) {
    const bool is_known = text::IsNum(row[forces::XComponent]) && text::IsNum(row[forces::YComponent]);
    const bool has_components = row[forces::FormatCode].Text() == notation::kComponents;
    return !is_known && !HasUnknownDirection(row) && (has_components || !text::IsNum(row[forces::Hour]));
}

/// The clock reading of a force; of the direction that the user wants, or of the default one, while its own
/// is unknown.
numeric::ClockReading ReadingOf(const forces::ForceRow& row, std::optional<double> wanted) {
    if (text::IsNum(row[forces::Hour]))
        return {static_cast<int>(row[forces::Hour].Number()), row[forces::ClockAngle].Number()};
    const double direction = wanted.value_or(forces::kDefaultDrawDirection);
    return numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
}

ForceArrow WholeArrow(const forces::ForceRow& row, std::optional<double> wanted, int decimals) {
    const bool is_known = text::IsNum(row[forces::Magnitude]);
    numeric::ClockReading reading = ReadingOf(row, wanted);
    if (is_known && row[forces::Magnitude].Number() < 0)
        reading.hour = notation::OppositeHour(reading.hour);
    return {{reading.hour, reading.angle, Leaves(row)},
            ColorOf(static_cast<int>(row[forces::Colour].Number())),
            is_known ? SizeText(row[forces::Magnitude].Number(), decimals)
                     : WithoutSign(row[forces::ShownMagnitude].Text())};
}

std::vector<ForceArrow> ArrowsOf(const forces::ForceRow& row, std::optional<double> wanted, int decimals) {
    std::vector<ForceArrow> arrows;
    if (!IsDrawnByComponents(row))
        return {WholeArrow(row, wanted, decimals)};
    for (const ComponentArrow& axis : kComponentArrows)
        AddComponent(arrows, row, axis, decimals);
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
    if (force.row.HasForce())
        for (const ForceArrow& arrow : ArrowsOf(force.row.force, force.wanted, decimals))
            labels.push_back(
                {arrow.label, layout.AddForce(force.place, arrow.sense, arrow.color), arrow.color});
    return labels;
}

WantedLabel AddCouple(DiagramLayout& layout, Point place, const Couple& couple, int decimals) {
    const Color color = couple.IsKnown() ? kKnownColor : kUnknownColor;
    return {LabelOf(couple, decimals), layout.AddCouple(place, IsCounterclockwise(couple), color), color};
}

}  // namespace

bool NeedsDrawDirection(const BodyForce& force) { return HasUnknownDirection(force.force); }

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
