#pragma once

#include <cstddef>
#include <string>

#include "tools/rigid/rigid_picture.h"

namespace tavrelo::tools::rigid {

/// The picture in words: points, systems, lines in view, then for every body in view its forces and couples.
std::string DescribeScene(const RigidScene& scene);

/// One row of the forces (from 0), with the point on which it acts: "en C, 60 hacia abajo".
std::string DescribeBodyForce(const RigidScene& scene, std::size_t row);

/// One line on top of the picture: "Línea del sistema 2: A, B y C."
std::string DescribeLine(const mechanics::rigid::LineRow& line);

}  // namespace tavrelo::tools::rigid
