#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "mechanics/points/configuration.h"
#include "text/color.h"
#include "window/controls.h"

// The strip over the table of points: where its columns and bands lie, what a press on it hits, and how it is
// painted. It stands right over the grid, a column of the strip over a column of points. Places are the
// strip's own: pixels, x from the left edge of the first point column, y upward.

namespace tavrelo::frame {

inline constexpr int kPointColumns = 9;
inline constexpr double kStripColumn = 64;  // width of a column
inline constexpr double kLabelTop = 19;     // the labels reach up to here, this height included
inline constexpr double kStripTop = 42;     // and the grey band up to here

enum class StripBand { Labels, Grey, Outside };

struct StripPlace {
    StripBand band = StripBand::Outside;
    int column = 0;  // of the grid, from 1; 0 outside
};
StripPlace PlaceOnStrip(double x, double y);

/// Left edge of the box of an acceleration that stands over `points` columns from `first_column` (from 1).
int AccelerationBoxLeft(int first_column, int points);

/// A point's label. One that two stretches share has the earlier one's colour on its left half and the later
/// one's on its right half, as a click is taken.
struct StripLabel {
    int number;  // of the point in its mover
    text::Color left;
    text::Color right;
};

/// A cell of the labels over a column; over the left or right half of it where two stretches share the point.
enum class StripHalf { Both, Left, Right };
window::PictureCell LabelCell(std::string name, int column, StripHalf half = StripHalf::Both);
/// The labels of all points, those that two stretches share as two cells.
std::vector<window::PictureCell> LabelCells(const mechanics::points::Configuration& configuration);
/// The cell of the grey band over a column.
window::PictureCell GreyCell(std::string name, int column);
/// The number of the point over a column, with its mover where there are two: "3 del móvil 2".
std::string NameOfPoint(const mechanics::points::Configuration& configuration, int column);

/// The strip before anything is chosen: light labels 0 to 8 under an empty grey band.
void PaintEmptyStrip(window::Surface& strip);
/// What to do next, in the grey band from `left` on.
void PaintStripPrompt(window::Surface& strip, std::string_view prompt, double left);
/// Clears the strip and paints the grey band and the labels of all points.
void PaintPointStrip(window::Surface& strip, std::span<const StripLabel> labels);
/// The bracket over the columns of one acceleration, behind its box.
void PaintBracket(window::Surface& strip, int first_column, int points);
/// How the speed of a point is given ("md", "cs"), in the grey band over its column.
void PaintSpeedMode(window::Surface& strip, int column, std::string_view mode);

}  // namespace tavrelo::frame
