#include "tools/projectile/projectile_strip.h"

#include <vector>

#include "drawing/words.h"
#include "frame/points_colors.h"
#include "frame/points_strip.h"
#include "frame/points_words.h"

namespace tavrelo::tools::projectile {
namespace {

using frame::StripBand;
using frame::StripPlace;
using mechanics::points::Stage;
using mechanics::projectile::Problem;
using mechanics::projectile::SpeedMode;
using window::MouseButton;
using window::MouseStroke;

constexpr int kOnlyStretch = 1;

Shortcut ShortcutOf(const MouseStroke& stroke) {
    if (stroke.alt)
        return Shortcut::OtherSide;
    if (stroke.shift)
        return Shortcut::Plant;
    return stroke.ctrl ? Shortcut::Substitute : Shortcut::None;
}

StripAction ActionOf(const MouseStroke& stroke, StripBand band, Stage stage) {
    const bool configured = stage == Stage::Configured;
    if (band == StripBand::Outside)
        return StripAction::Nothing;
    if (stroke.button == MouseButton::Right) {
        if (band == StripBand::Grey)
            return configured ? StripAction::StartDrag : StripAction::Nothing;
        const bool inside = stroke.y > 0 && stroke.y < frame::kLabelTop;
        return inside ? StripAction::ClearPoint : StripAction::Nothing;
    }
    if (band == StripBand::Grey)
        return stage == Stage::Unconfigured ? StripAction::Nothing : StripAction::ClickBand;
    return configured ? StripAction::RunLabel : StripAction::AskConfiguration;
}

std::vector<frame::StripLabel> LabelsOf(const mechanics::points::Configuration& configuration) {
    std::vector<frame::StripLabel> labels;
    for (int mover = 1; mover <= configuration.MoverCount(); ++mover) {
        const text::Color color = frame::StretchColor(mover, kOnlyStretch);
        for (int point = 0; point < configuration.MoverAt(mover).points; ++point)
            labels.push_back({point, color, color});
    }
    return labels;
}

/// "md" and "cs" over the columns.
std::string DescribeSpeedModes(const Problem& problem) {
    std::vector<std::string> columns;
    for (int column = 1; column <= frame::kPointColumns; ++column)
        if (problem.ModeOf(column) == SpeedMode::Components)
            columns.push_back(std::to_string(column));
    if (columns.empty())
        return "Velocidad por magnitud y dirección en todas las columnas.";
    return (columns.size() == 1 ? "Velocidad por componentes en la columna "
                                : "Velocidad por componentes en las columnas ") +
           drawing::Listed(columns) + ", por magnitud y dirección en las demás.";
}

}  // namespace

StripMeaning MeaningOfPress(const MouseStroke& stroke, Stage stage) {
    const StripPlace place = frame::PlaceOnStrip(stroke.x, stroke.y);
    const StripAction action = ActionOf(stroke, place.band, stage);
    if (action == StripAction::Nothing)
        return {};
    const Shortcut shortcut = action == StripAction::RunLabel ? ShortcutOf(stroke) : Shortcut::None;
    return {action, stroke.x / frame::kStripColumn, place.column, shortcut};
}

std::optional<DragEnd> MeaningOfRelease(const MouseStroke& stroke) {
    const StripPlace place = frame::PlaceOnStrip(stroke.x, stroke.y);
    if (place.band != StripBand::Grey)
        return std::nullopt;
    return DragEnd{place.column, stroke.shift};
}

std::vector<window::PictureCell> StripCells(const Problem& problem) {
    std::vector<window::PictureCell> cells;
    const bool configured = problem.configuration.IsConfigured();
    const bool has_band = problem.configuration.stage != Stage::Unconfigured;
    for (int column = 1; column <= frame::kPointColumns && has_band; ++column) {
        const std::string point = frame::NameOfPoint(problem.configuration, column);
        if (!configured) {
            cells.push_back(frame::GreyCell("El móvil 1 hasta el punto " + point, column));
            continue;
        }
        const bool in_components = problem.ModeOf(column) == SpeedMode::Components;
        cells.push_back(frame::GreyCell(
            "Velocidad del punto " + point + (in_components ? ", en componentes" : ", en módulo y dirección"),
            column));
        cells.back().drags_with = MouseButton::Right;
    }
    const auto labels = frame::LabelCells(problem.configuration);
    cells.insert(cells.end(), labels.begin(), labels.end());
    return cells;
}

void PaintStrip(window::Recorder& strip, const Problem& problem) {
    frame::PaintPointStrip(strip, LabelsOf(problem.configuration));
    for (int column = 1; column <= frame::kPointColumns; ++column)
        frame::PaintSpeedMode(strip, column, problem.ModeOf(column) == SpeedMode::Components ? "cs" : "md");
    strip.Describe(frame::DescribeConfiguration(problem.configuration) + " " + DescribeSpeedModes(problem));
}

}  // namespace tavrelo::tools::projectile
