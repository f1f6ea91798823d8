#pragma once

#include <span>

#include "problem.h"

namespace tavrelo::physics {

/// Every kind of problem, in the order in which a run plays them.
std::span<const ProblemKind> AllKinds();

}  // namespace tavrelo::physics
