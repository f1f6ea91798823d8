#include "tools/motion/motion_strip.h"

#include "frame/points_colors.h"
#include "frame/points_strip.h"
#include "frame/points_words.h"
#include "mechanics/motion/problem.h"

namespace tavrelo::tools::motion {
namespace {

using frame::StripBand;
using frame::StripPlace;
using mechanics::points::Configuration;
using mechanics::points::Stage;
using window::MouseButton;
using window::MouseStroke;

/// What is asked for in the grey band after the press of a button, and where it begins (pixels).
struct Prompt {
    std::string_view text;
    double left;
};
constexpr Prompt kPrompts[] = {
    {"", 0},
    {"A lo más 2 clics en este espacio, uno por cada punto límite de tramo", 100},
    {"Haz un clic en este espacio para separar los puntos de uno y otro móvil", 100},
    {"A lo más 3 clics en este espacio, el primero para separar los dos móviles "
     "y los demás para definir los tramos del primero",
     10},
};

/// The labels of all points from the left.
std::vector<frame::StripLabel> LabelsOf(const Configuration& configuration) {
    std::vector<frame::StripLabel> labels;
    for (int mover = 1; mover <= configuration.MoverCount(); ++mover) {
        int stretch = 1;  // the one that the point ends, or in which it lies
        for (int point = 0; point < configuration.MoverAt(mover).points; ++point) {
            const text::Color left = frame::StretchColor(mover, stretch);
            if (configuration.HasStretch(mover, stretch + 1) &&
                configuration.StretchAt(mover, stretch + 1).first == point)
                ++stretch;
            labels.push_back({point, left, frame::StretchColor(mover, stretch)});
        }
    }
    return labels;
}

Shortcut ShortcutOf(const MouseStroke& stroke) {
    if (stroke.shift)
        return Shortcut::Plant;
    if (stroke.ctrl)
        return Shortcut::Substitute;
    return stroke.alt ? Shortcut::OppositeSpeed : Shortcut::None;
}

StripAction ActionOfGreyBand(Stage stage) {
    switch (stage) {
        case Stage::Pending:
        case Stage::Limits:
            return StripAction::Divide;
        case Stage::Configured:
            return StripAction::StartDrag;
        default:
            return StripAction::Nothing;
    }
}

StripAction ActionOf(const MouseStroke& stroke, StripBand band, Stage stage) {
    if (band == StripBand::Outside)
        return StripAction::Nothing;
    if (stroke.button == MouseButton::Right) {
        const bool inside = stroke.y > 0 && stroke.y < frame::kLabelTop;
        return inside ? StripAction::ClearPoint : StripAction::Nothing;
    }
    if (band == StripBand::Grey)
        return ActionOfGreyBand(stage);
    return stage == Stage::Configured ? StripAction::RunLabel : StripAction::AskConfiguration;
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
    if (stroke.y <= frame::kLabelTop)
        return std::nullopt;
    return DragEnd{stroke.x / frame::kStripColumn, stroke.shift};
}

std::vector<AccelerationSpan> SpansOf(const Configuration& configuration) {
    std::vector<AccelerationSpan> spans;
    for (int mover = 1; mover <= configuration.MoverCount(); ++mover) {
        for (int stretch = 1; configuration.HasStretch(mover, stretch); ++stretch) {
            const mechanics::points::Stretch& points = configuration.StretchAt(mover, stretch);
            spans.push_back({mechanics::motion::SlotOf(mover, stretch),
                             ColumnOfPoint(configuration, mover, points.first), points.Points()});
        }
    }
    return spans;
}

std::vector<window::PictureCell> StripCells(const Configuration& configuration) {
    std::vector<window::PictureCell> cells;
    const StripAction action = ActionOfGreyBand(configuration.stage);
    for (int column = 1; column <= frame::kPointColumns && action != StripAction::Nothing; ++column) {
        const std::string point = frame::NameOfPoint(configuration, column);
        if (action == StripAction::StartDrag) {
            cells.push_back(frame::GreyCell("Datos del punto " + point, column));
            cells.back().drags_with = MouseButton::Left;
            continue;
        }
        const bool splits = configuration.stage == Stage::Pending &&
                            configuration.chosen_movers == mechanics::points::kMostMovers;
        cells.push_back(frame::GreyCell(
            splits ? "El móvil 1 hasta el punto " + point : "Fin de tramo en el punto " + point, column));
    }
    const auto labels = frame::LabelCells(configuration);
    cells.insert(cells.end(), labels.begin(), labels.end());
    return cells;
}

void PaintPrompt(window::Recorder& strip, int configuration) {
    const Prompt& prompt = kPrompts[configuration];
    frame::PaintStripPrompt(strip, prompt.text, prompt.left);
}

void PaintMotionStrip(window::Recorder& strip, const Configuration& configuration) {
    frame::PaintPointStrip(strip, LabelsOf(configuration));
    for (const AccelerationSpan& span : SpansOf(configuration))
        frame::PaintBracket(strip, span.first_column, span.points);
    strip.Describe(frame::DescribeConfiguration(configuration));
}

}  // namespace tavrelo::tools::motion
