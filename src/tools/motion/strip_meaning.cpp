#include "tools/motion/strip_meaning.h"

#include "frame/points_strip.h"

namespace tavrelo::tools::motion {
namespace {

using frame::StripBand;
using frame::StripPlace;
using mechanics::points::Stage;
using window::MouseButton;
using window::MouseStroke;

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

}  // namespace tavrelo::tools::motion
