#pragma once

#include <optional>
#include <vector>

#include "mechanics/points/configuration.h"
#include "window/controls.h"

namespace tavrelo::tools::motion {

/// What a key held with a click on a label asks for first.
enum class Shortcut { None, Plant, Substitute, OppositeSpeed };

enum class StripAction {
    Nothing,
    AskConfiguration,  // a label before the table is configured
    Divide,            // sets the movers or the limit of a stretch
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

/// What was meant by a release: where a dragged column goes, in columns from the left edge of the first, and
/// whether it stays where it was as well. Nothing outside the grey band.
struct DragEnd {
    double position;
    bool copies;
};
std::optional<DragEnd> MeaningOfRelease(const window::MouseStroke& stroke);

/// The columns over which an acceleration stands, from 1, by the slot of its stretch.
struct AccelerationSpan {
    std::size_t slot;
    int first_column;
    int points;
};
std::vector<AccelerationSpan> SpansOf(const mechanics::points::Configuration& configuration);

/// What can be pressed on the strip, as MeaningOfPress takes it.
std::vector<window::PictureCell> StripCells(const mechanics::points::Configuration& configuration);

/// Asks, in the grey band, for the clicks that a configuration needs (by the index of its button).
void PaintPrompt(window::Recorder& strip, int configuration);
/// Paints the labels of all points in the colours of their stretches, and a bracket over each stretch.
void PaintMotionStrip(window::Recorder& strip, const mechanics::points::Configuration& configuration);

}  // namespace tavrelo::tools::motion
