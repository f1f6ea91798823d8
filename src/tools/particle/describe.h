#pragma once

#include <string>

#include "tools/particle/forces_in_view.h"

namespace tavrelo::tools::particle {

/// The diagram in words: "Tres fuerzas: F1 a 30 grados, desconocida; ...". `rotation` in degrees.
std::string DescribeForces(const ForcesInView& forces, double rotation, int decimals);

/// One force of it, by its index from 0: "F1 a 30 grados, desconocida".
std::string DescribeForce(const ForcesInView& forces, std::size_t index, int decimals);

}  // namespace tavrelo::tools::particle
