#pragma once

#include <string_view>

#include "mechanics/projectile/point_click.h"
#include "mechanics/projectile/step.h"

namespace tavrelo::mechanics::projectile {

/// What a point says of the speed or the angle of the launch, or of both.
Step SubstituteInPolar(const Click& click);
/// What a point says of the component that is unknown. For v0x from x and the speed a limit is asked for
/// first.
Step SubstituteInComponents(const Click& click);

/// The roots for v0x below the typed limit: their report and the question whether to plant; or what is said
/// when there are none. Either way the polynomial goes to the expression box.
Step SearchQuartic(const Problem& problem, const QuarticSearch& search, std::string_view typed, int decimals);

}  // namespace tavrelo::mechanics::projectile
