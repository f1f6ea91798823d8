#pragma once

#include <string>
#include <vector>

#include "mechanics/forces/resultants.h"
#include "numeric/point.h"
#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// Given vectors and results in the drawings.
inline constexpr text::Color kGivenColor = text::FromBgr(0);
inline constexpr text::Color kResultColor = text::FromBgr(255);

/// A vector of a drawing, in its own units, with the point it leaves.
struct DrawnVector {
    double x;
    double y;
    std::string label;
    text::Color color = kGivenColor;
    numeric::Point from = {};  // in the units of lengths, y upward
};

/// Arrows from the middle of `pic`, behind them the axes, which are the first two shapes.
struct AxesTurn {
    double degrees = 0;
    bool turned = false;  // named X', Y'; the axes at rest stand behind them
};
void DrawFromCenter(RoutineRun& run, const std::vector<DrawnVector>& vectors, AxesTurn turn = {});

/// Arrows from their points on `pic`, in the largest scale in which all of it has place; axes from the
/// origin.
void DrawAtPoints(RoutineRun& run, const std::vector<DrawnVector>& vectors);

/// Forces along z at points of the plane xy, seen from aside: x to the right, y into the depth, z upward.
void DrawVerticalForces(RoutineRun& run, const std::vector<DrawnVector>& forces);

}  // namespace tavrelo::tools::calculator
