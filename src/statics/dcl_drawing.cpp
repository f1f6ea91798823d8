#include "statics/dcl_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "numeric/angles.h"
#include "numeric/compare.h"
#include "numeric/number_text.h"
#include "statics/unknowns.h"
#include "vectors/clock_direction.h"
#include "vectors/symbols.h"
#include "vectors/vector_format.h"

namespace tavrelo::statics {
namespace {

using shell::Color;
using shell::Point;

constexpr double kNoComponent = 1e-8;  // largest component that is not drawn

/// An arrow that a row asks for.
struct ForceArrow {
    ArrowSense sense;
    Color color;
    std::string label;
};

Color ColorOf(int colour) { return shell::FromBgr(static_cast<std::uint32_t>(colour)); }

std::string SizeText(double number, int decimals) { return numeric::RoundedText(std::abs(number), decimals); }

bool Leaves(const ForceRow& row) { return row[LeavesPoint].Number() != vectors::kArrives; }

std::string WithoutSign(const std::string& text) { return text.starts_with('-') ? text.substr(1) : text; }

/// The arrow along one axis of a force that is drawn by its components; its label carries no sign, so the
/// arrow does.
struct ComponentArrow {
    const ComponentColumns& columns;
    int positive_hour;
};
constexpr ComponentArrow kComponentArrows[] = {{kXColumns, vectors::kHourRight},
                                               {kYColumns, vectors::kHourUp}};

void AddComponent(std::vector<ForceArrow>& arrows, const ForceRow& row, const ComponentArrow& axis,
                  int decimals) {
    const numeric::Value& component = row[axis.columns.component];
    const std::string unknown = row[axis.columns.unknown].Text();
    const bool is_known = numeric::IsNum(component);
    const double number = (is_known ? component : row[axis.columns.coefficient]).Number();
    if (is_known && numeric::NearEq(number, 0, kNoComponent))
        return;
    const int known_colour = unknown.empty() ? kKnown : kSolved;
    arrows.push_back(
        {{number < 0 ? vectors::OppositeHour(axis.positive_hour) : axis.positive_hour, 0, Leaves(row)},
         ColorOf(is_known ? known_colour : kUnknown),
         is_known ? SizeText(number, decimals) : vectors::SymbolMarkup(number, unknown, decimals)});
}

/// A force given by components shows these while one of them is unknown.
bool IsDrawnByComponents(const ForceRow& row) {
    const bool is_known = numeric::IsNum(row[XComponent]) && numeric::IsNum(row[YComponent]);
    const bool has_components = row[FormatCode].Text() == vectors::kComponents;
    const bool has_angle = ReadUnknown(row[XUnknown].Text()).HasAngle();
    return !is_known && !has_angle && (has_components || !numeric::IsNum(row[Hour]));
}

/// The clock reading of a force; of the default direction while its own is unknown and nobody was asked.
numeric::ClockReading ReadingOf(const ForceRow& row) {
    if (numeric::IsNum(row[Hour]))
        return {static_cast<int>(row[Hour].Number()), row[ClockAngle].Number()};
    return numeric::ClockOf(numeric::CosD(kDefaultDrawDirection), numeric::SinD(kDefaultDrawDirection));
}

ForceArrow WholeArrow(const ForceRow& row, int decimals) {
    const bool is_known = numeric::IsNum(row[Magnitude]);
    numeric::ClockReading reading = ReadingOf(row);
    if (is_known && row[Magnitude].Number() < 0)
        reading.hour = vectors::OppositeHour(reading.hour);
    return {{reading.hour, reading.angle, Leaves(row)},
            ColorOf(static_cast<int>(row[Colour].Number())),
            is_known ? SizeText(row[Magnitude].Number(), decimals) : WithoutSign(row[ShownMagnitude].Text())};
}

std::vector<ForceArrow> ArrowsOf(const ForceRow& row, int decimals) {
    std::vector<ForceArrow> arrows;
    if (!IsDrawnByComponents(row))
        return {WholeArrow(row, decimals)};
    for (const ComponentArrow& axis : kComponentArrows)
        AddComponent(arrows, row, axis, decimals);
    return arrows;
}

bool IsCounterclockwise(const numeric::Value& couple) {
    if (numeric::IsNum(couple))
        return couple.Number() >= 0;
    return !couple.Text().starts_with('-');
}

std::string CoupleLabel(const numeric::Value& couple, int decimals) {
    if (numeric::IsNum(couple))
        return SizeText(couple.Number(), decimals);
    return vectors::SymbolMarkup(1, WithoutSign(couple.Text()), decimals);
}

using RowLabels = std::vector<SheetLabel>;

Point PlaceOf(const BodyForce& row) { return {row.draw_x, row.draw_y}; }

RowLabels DrawForce(RigidSheet& sheet, const BodyForce& row, int decimals) {
    RowLabels labels;
    if (row.HasForce())
        for (const ForceArrow& arrow : ArrowsOf(row.force, decimals))
            labels.push_back(
                {arrow.label, sheet.AddForce(PlaceOf(row), arrow.sense, arrow.color), arrow.color});
    return labels;
}

SheetLabel DrawCouple(RigidSheet& sheet, const BodyForce& row, int decimals) {
    const Color color = ColorOf(row.couple_colour);
    return {CoupleLabel(row.couple, decimals),
            sheet.AddCouple(PlaceOf(row), IsCounterclockwise(row.couple), color), color};
}

}  // namespace

void DrawDCL(RigidSheet& sheet, const RigidScene& scene) {
    BodyForces shown;
    std::ranges::copy_if(scene.forces, std::back_inserter(shown), [&](const BodyForce& row) {
        return scene.shown[static_cast<std::size_t>(row.body) - 1];
    });
    std::vector<RowLabels> labels;
    for (const BodyForce& row : shown)
        labels.push_back(DrawForce(sheet, row, scene.decimals));
    // A couple turns its head away from the arrows of all rows.
    for (std::size_t i = 0; i < shown.size(); ++i)
        if (shown[i].HasCouple())
            labels[i].push_back(DrawCouple(sheet, shown[i], scene.decimals));
    for (const RowLabels& of_row : labels)
        for (const SheetLabel& label : of_row)
            sheet.AddLabel(label);
}

}  // namespace tavrelo::statics
