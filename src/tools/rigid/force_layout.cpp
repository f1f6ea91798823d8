#include "tools/rigid/force_layout.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "drawing/force_color.h"
#include "drawing/force_words.h"
#include "drawing/words.h"
#include "notation/clock_direction.h"
#include "numeric/angles.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "text/symbols.h"
#include "tools/rigid/describe.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyForce;
using mechanics::rigid::Couple;
using notation::Knowledge;
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

/// A force in view, how it is shown, and where its point stands.
struct SeenForce {
    const BodyForce& row;
    const ForceLook& look;
    Point place;
    std::string tip;
};

/// The arrow along one axis of a force that is drawn by its components; its label carries no sign, so the
/// arrow does. Nothing for a component of no size.
std::optional<ForceArrow> ComponentArrow(const notation::ForceComponent& component, int positive_hour,
                                         bool leaves, int decimals) {
    const double number = component.number.value_or(component.coefficient);
    if (component.number && numeric::NearEq(number, 0, kNoComponent))
        return {};
    const int hour = number < 0 ? notation::OppositeHour(positive_hour) : positive_hour;
    const Knowledge known = component.unknown.IsNone() ? Knowledge::Given : Knowledge::Found;
    return ForceArrow{{hour, 0, leaves},
                      drawing::ColorOf(component.number ? known : Knowledge::Unknown),
                      component.number ? SizeText(number, decimals)
                                       : text::SymbolMarkup(number, component.unknown.magnitude, decimals)};
}

/// A force given by components shows these while one of them is unknown.
bool IsDrawnByComponents(const notation::Force& force, const ForceLook& look) {
    return !force.HasComponents() && !force.x.unknown.HasAngle() && (look.by_components || !look.clock);
}

/// The clock reading of a force; of the direction that the user wants, or of the default one, while its own
/// is unknown.
numeric::ClockReading ReadingOf(const ForceLook& look) {
    if (look.clock)
        return *look.clock;
    const double direction = look.asked_direction.value_or(kDefaultDirection);
    return numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction));
}

ForceArrow WholeArrow(const notation::Force& force, const ForceLook& look, int decimals) {
    numeric::ClockReading reading = ReadingOf(look);
    if (force.magnitude && *force.magnitude < 0)
        reading.hour = notation::OppositeHour(reading.hour);
    return {{reading.hour, reading.angle, look.leaves},
            drawing::ColorOf(force.knowledge),
            force.magnitude ? SizeText(*force.magnitude, decimals) : WithoutSign(look.label)};
}

std::vector<ForceArrow> ArrowsOf(const notation::Force& force, const ForceLook& look, int decimals) {
    if (!IsDrawnByComponents(force, look))
        return {WholeArrow(force, look, decimals)};
    std::vector<ForceArrow> arrows;
    for (const auto& [component, hour] :
         {std::pair{&force.x, notation::kHourRight}, {&force.y, notation::kHourUp}})
        if (auto arrow = ComponentArrow(*component, hour, look.leaves, decimals))
            arrows.push_back(*std::move(arrow));
    return arrows;
}

bool IsCounterclockwise(const Couple& couple) { return couple.value.value_or(couple.sign) >= 0; }

std::string LabelOf(const Couple& couple, int decimals) {
    return couple.IsKnown() ? SizeText(*couple.value, decimals)
                            : text::SymbolMarkup(1, couple.symbol, decimals);
}

/// Name, size, direction and couple of a row, below them the components.
std::string TipOf(const RigidScene& scene, std::size_t row) {
    const std::string words = drawing::AsSentence(DescribeBodyForce(scene, row));
    const std::optional<notation::Force>& force = scene.problem.forces[row].force;
    const std::string components = force ? drawing::ComponentsWords(*force, scene.decimals) : std::string();
    return components.empty() ? words : words + "\n" + drawing::AsSentence(components);
}

std::vector<SeenForce> ForcesInView(const RigidScene& scene, const PointPlaces& places) {
    std::vector<SeenForce> seen;
    const std::size_t count = std::min(scene.problem.forces.size(), scene.view.looks.size());
    for (std::size_t i = 0; i < count; ++i) {
        const BodyForce& row = scene.problem.forces[i];
        const std::optional<Point> place = places.Find(row.point);
        if (place && scene.view.IsShown(row.body))
            seen.push_back({row, scene.view.looks[i], *place, TipOf(scene, i)});
    }
    return seen;
}

using RowLabels = std::vector<WantedLabel>;

RowLabels AddForce(DiagramLayout& layout, const SeenForce& force, int decimals) {
    RowLabels labels;
    if (force.row.force)
        for (const ForceArrow& arrow : ArrowsOf(*force.row.force, force.look, decimals))
            labels.push_back({arrow.label, layout.AddForce(force.place, arrow.sense, arrow.color, force.tip),
                              arrow.color});
    return labels;
}

WantedLabel AddCouple(DiagramLayout& layout, const SeenForce& row, const Couple& couple, int decimals) {
    const Color color = couple.IsKnown() ? drawing::kGivenColor : drawing::kUnknownColor;
    return {LabelOf(couple, decimals),
            layout.AddCouple(row.place, IsCounterclockwise(couple), color, row.tip), color};
}

}  // namespace

void AddForces(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places) {
    const std::vector<SeenForce> seen = ForcesInView(scene, places);
    std::vector<RowLabels> labels;
    for (const SeenForce& force : seen)
        labels.push_back(AddForce(layout, force, scene.decimals));
    // A couple turns its head away from the arrows of all rows.
    for (std::size_t i = 0; i < seen.size(); ++i)
        if (const std::optional<Couple>& couple = seen[i].row.couple)
            labels[i].push_back(AddCouple(layout, seen[i], *couple, scene.decimals));
    for (const RowLabels& of_row : labels)
        for (const WantedLabel& label : of_row)
            layout.AddLabel(label);
}

}  // namespace tavrelo::tools::rigid
