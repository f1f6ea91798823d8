#pragma once

#include <string>

#include "mechanics/points/configuration.h"

namespace tavrelo::frame {

/// The strip over the table of points in words: "Móvil 1: puntos 0 a 8." and its stretches.
std::string DescribeConfiguration(const mechanics::points::Configuration& configuration);

}  // namespace tavrelo::frame
