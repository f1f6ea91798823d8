#pragma once

#include <string>

#include "mechanics/motion/graph.h"

namespace tavrelo::tools::motion {

/// The graph of position against time in words, mover by mover.
std::string DescribeMotionGraph(const mechanics::motion::MotionGraph& graph, int decimals);

}  // namespace tavrelo::tools::motion
