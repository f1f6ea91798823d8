#pragma once

#include "tools/calculator/task.h"

namespace tavrelo::tools::calculator {

// Triangles and polygons: report, and drawing on `pic`.

/// From three of L1, A1, L2, A2, L3, A3, angle Ai opposite side Li; "x" stands for the others.
Outcome TriangleFromData(Task& task);
/// From x1, y1, x2, y2, x3, y3.
Outcome TriangleFromVertices(Task& task);
/// From x1, y1, x2, y2, ..., in order.
Outcome Polygon(Task& task);

}  // namespace tavrelo::tools::calculator
