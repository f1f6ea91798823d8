#pragma once

#include <optional>
#include <vector>

#include "mechanics/projectile/problem.h"
#include "window/controls.h"

namespace tavrelo::tools::projectile {

/// What a key held with a click on a label asks for.
enum class Shortcut { None, Plant, Substitute, OtherSide };

enum class StripAction {
    Nothing,
    AskConfiguration,  // a label before the table is configured
    ClickBand,         // divides the movers, or changes how a speed is given
    StartDrag,         // of a column
    RunLabel,          // the procedure in use, on a point
    ClearPoint,
};

/// What was meant by a press on the strip.
struct StripMeaning {
    StripAction action = StripAction::Nothing;
    double position = 0;  // in columns from the left edge of the first
    int column = 0;       // of the grid, from 1
    Shortcut shortcut = Shortcut::None;

    friend bool operator==(const StripMeaning&, const StripMeaning&) = default;
};
StripMeaning MeaningOfPress(const window::MouseStroke& stroke, mechanics::points::Stage stage);

/// What was meant by the release of the right button: the column on which a dragged point falls, and whether
/// it stays where it was as well. Nothing outside the grey band.
struct DragEnd {
    int column;
    bool copies;
};
std::optional<DragEnd> MeaningOfRelease(const window::MouseStroke& stroke);

/// What can be pressed on the strip, as MeaningOfPress takes it.
std::vector<window::PictureCell> StripCells(const mechanics::projectile::Problem& problem);

/// Paints the labels of all points of a configured table and how the speed of each is given.
void PaintStrip(window::Recorder& strip, const mechanics::projectile::Problem& problem);

}  // namespace tavrelo::tools::projectile
