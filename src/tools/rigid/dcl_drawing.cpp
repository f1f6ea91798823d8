#include "tools/rigid/dcl_drawing.h"

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

using text::Color;
using window::Point;

constexpr double kNoComponent = 1e-8;  // largest component that is not drawn

/// An arrow that a row asks for.
struct ForceArrow {
    ArrowSense sense;
    Color color;
    std::string label;
};

Color ColorOf(int colour) { return text::FromBgr(static_cast<std::uint32_t>(colour)); }

std::string SizeText(double number, int decimals) { return text::RoundedText(std::abs(number), decimals); }

bool Leaves(const mechanics::forces::ForceRow& row) {
    return row[mechanics::forces::LeavesPoint].Number() != notation::kArrives;
}

std::string WithoutSign(const std::string& text) { return text.starts_with('-') ? text.substr(1) : text; }

/// The arrow along one axis of a force that is drawn by its components; its label carries no sign, so the
/// arrow does.
struct ComponentArrow {
    const mechanics::forces::ComponentColumns& columns;
    int positive_hour;
};
constexpr ComponentArrow kComponentArrows[] = {{mechanics::forces::kXColumns, notation::kHourRight},
                                               {mechanics::forces::kYColumns, notation::kHourUp}};

void AddComponent(std::vector<ForceArrow>& arrows, const mechanics::forces::ForceRow& row,
                  const ComponentArrow& axis, int decimals) {
    const text::Value& component = row[axis.columns.component];
    const std::string unknown = row[axis.columns.unknown].Text();
    const bool is_known = text::IsNum(component);
    const double number = (is_known ? component : row[axis.columns.coefficient]).Number();
    if (is_known && numeric::NearEq(number, 0, kNoComponent))
        return;
    const int known_colour = unknown.empty() ? mechanics::forces::kKnown : mechanics::forces::kSolved;
    arrows.push_back(
        {{number < 0 ? notation::OppositeHour(axis.positive_hour) : axis.positive_hour, 0, Leaves(row)},
         ColorOf(is_known ? known_colour : mechanics::forces::kUnknown),
         is_known ? SizeText(number, decimals) : text::SymbolMarkup(number, unknown, decimals)});
}

/// A force given by components shows these while one of them is unknown.
bool IsDrawnByComponents(const mechanics::forces::ForceRow& row) {
    const bool is_known =
        text::IsNum(row[mechanics::forces::XComponent]) && text::IsNum(row[mechanics::forces::YComponent]);
    const bool has_components = row[mechanics::forces::FormatCode].Text() == notation::kComponents;
    const bool has_angle = mechanics::forces::ReadUnknown(row[mechanics::forces::XUnknown].Text()).HasAngle();
    return !is_known && !has_angle && (has_components || !text::IsNum(row[mechanics::forces::Hour]));
}

/// The clock reading of a force; of the default direction while its own is unknown and nobody was asked.
numeric::ClockReading ReadingOf(const mechanics::forces::ForceRow& row) {
    if (text::IsNum(row[mechanics::forces::Hour]))
        return {static_cast<int>(row[mechanics::forces::Hour].Number()),
                row[mechanics::forces::ClockAngle].Number()};
    return numeric::ClockOf(numeric::CosD(mechanics::forces::kDefaultDrawDirection),
                            numeric::SinD(mechanics::forces::kDefaultDrawDirection));
}

ForceArrow WholeArrow(const mechanics::forces::ForceRow& row, int decimals) {
    const bool is_known = text::IsNum(row[mechanics::forces::Magnitude]);
    numeric::ClockReading reading = ReadingOf(row);
    if (is_known && row[mechanics::forces::Magnitude].Number() < 0)
        reading.hour = notation::OppositeHour(reading.hour);
    return {{reading.hour, reading.angle, Leaves(row)},
            ColorOf(static_cast<int>(row[mechanics::forces::Colour].Number())),
            is_known ? SizeText(row[mechanics::forces::Magnitude].Number(), decimals)
                     : WithoutSign(row[mechanics::forces::ShownMagnitude].Text())};
}

std::vector<ForceArrow> ArrowsOf(const mechanics::forces::ForceRow& row, int decimals) {
    std::vector<ForceArrow> arrows;
    if (!IsDrawnByComponents(row))
        return {WholeArrow(row, decimals)};
    for (const ComponentArrow& axis : kComponentArrows)
        AddComponent(arrows, row, axis, decimals);
    return arrows;
}

bool IsCounterclockwise(const text::Value& couple) {
    if (text::IsNum(couple))
        return couple.Number() >= 0;
    return !couple.Text().starts_with('-');
}

std::string CoupleLabel(const text::Value& couple, int decimals) {
    if (text::IsNum(couple))
        return SizeText(couple.Number(), decimals);
    return text::SymbolMarkup(1, WithoutSign(couple.Text()), decimals);
}

using RowLabels = std::vector<SheetLabel>;

Point PlaceOf(const mechanics::rigid::BodyForce& row) { return {row.draw_x, row.draw_y}; }

RowLabels DrawForce(RigidSheet& sheet, const mechanics::rigid::BodyForce& row, int decimals) {
    RowLabels labels;
    if (row.HasForce())
        for (const ForceArrow& arrow : ArrowsOf(row.force, decimals))
            labels.push_back(
                {arrow.label, sheet.AddForce(PlaceOf(row), arrow.sense, arrow.color), arrow.color});
    return labels;
}

SheetLabel DrawCouple(RigidSheet& sheet, const mechanics::rigid::BodyForce& row, int decimals) {
    const Color color = ColorOf(row.couple_colour);
    return {CoupleLabel(row.couple, decimals),
            sheet.AddCouple(PlaceOf(row), IsCounterclockwise(row.couple), color), color};
}

}  // namespace

void DrawDCL(RigidSheet& sheet, const RigidScene& scene) {
    mechanics::rigid::BodyForces shown;
    std::ranges::copy_if(scene.forces, std::back_inserter(shown),
                         [&](const mechanics::rigid::BodyForce& row) {
                             return scene.shown[static_cast<std::size_t>(row.body) - 1];
                         });
    std::vector<RowLabels> labels;
    for (const mechanics::rigid::BodyForce& row : shown)
        labels.push_back(DrawForce(sheet, row, scene.decimals));
    // A couple turns its head away from the arrows of all rows.
    for (std::size_t i = 0; i < shown.size(); ++i)
        if (shown[i].HasCouple())
            labels[i].push_back(DrawCouple(sheet, shown[i], scene.decimals));
    for (const RowLabels& of_row : labels)
        for (const SheetLabel& label : of_row)
            sheet.AddLabel(label);
}

}  // namespace tavrelo::tools::rigid
