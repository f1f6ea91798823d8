#pragma once

#include <string_view>

#include "mechanics/motion/procedures.h"

namespace tavrelo::tools::motion {

/// Carries out a procedure of the list on the data typed for it; nothing happens with one that takes none.
mechanics::motion::Step RunTyped(const mechanics::motion::Problem& problem,
                                 mechanics::motion::Procedure procedure, std::string_view data, int decimals);

}  // namespace tavrelo::tools::motion
