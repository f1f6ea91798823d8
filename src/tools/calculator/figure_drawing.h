#pragma once

#include <string>
#include <vector>

#include "numeric/point.h"
#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// A closed figure for a drawing. The lists of labels hold one for each vertex (side) or none.
struct Figure {
    std::vector<numeric::Point> vertices;  // y upward
    std::vector<text::Color> colors;       // of side i, from vertex i to the next; used in turn
    std::vector<std::string> vertex_labels = {};
    std::vector<std::string> side_labels = {};
};

/// Draws the figure on `pic`, centred, its larger extent 0.7 of the picture's smaller one, its labels
/// outside.
void DrawFigure(RoutineRun& run, const Figure& figure);

}  // namespace tavrelo::tools::calculator
