#pragma once

#include "problem.h"

namespace tavrelo::physics {

Verdict PlayRegularSystem(Problem& problem);

}  // namespace tavrelo::physics
