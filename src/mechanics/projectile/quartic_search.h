#pragma once

#include <string_view>

#include "mechanics/projectile/step.h"

namespace tavrelo::mechanics::projectile {

/// The roots for v0x below the typed limit: their report and the question whether to plant; or what is said
/// when there are none. Either way the polynomial goes to the expression box.
Step SearchQuartic(const Problem& problem, const QuarticSearch& search, std::string_view typed, int decimals);

}  // namespace tavrelo::mechanics::projectile
