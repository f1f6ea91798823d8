#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Triangles and polygons: report, and drawing on `pic`.

/// From three of L1, A1, L2, A2, L3, A3, angle Ai opposite side Li; "x" stands for the others.
Outcome TriangleFromData(RoutineRun& run);
/// From x1, y1, x2, y2, x3, y3.
Outcome TriangleFromVertices(RoutineRun& run);
/// From x1, y1, x2, y2, ..., in order.
Outcome Polygon(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
