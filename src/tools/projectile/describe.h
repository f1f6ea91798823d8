#pragma once

#include <string>

#include "mechanics/projectile/graph.h"

namespace tavrelo::tools::projectile {

/// The trajectories in words: where each begins and ends, what it covers and its highest point.
std::string DescribeTrajectories(const mechanics::projectile::Graph& graph, int decimals);

}  // namespace tavrelo::tools::projectile
