#pragma once

#include "mechanics/motion/graph.h"
#include "window/surface.h"

namespace tavrelo::tools::motion {

/// Clears the picture and draws the curves of position against time in the frame of graphs, each stretch in
/// its colour, with the rounded ends of both ranges and the names of axes and curves.
void DrawMotionGraph(window::Surface& picture, const mechanics::motion::MotionGraph& graph, int decimals);

}  // namespace tavrelo::tools::motion
