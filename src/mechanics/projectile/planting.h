#pragma once

#include <vector>

#include "mechanics/projectile/step.h"

namespace tavrelo::mechanics::projectile {

/// Plants a launch: the board of the mover with its five lines, then the report. A launch that is refused
/// takes the mover's earlier equations with it, and only the message is shown.
Outcome PlantInto(const Problem& problem, int mover, const Launch& launch, int decimals);

/// The question whether to plant one of the launches of a mover: the first with Yes, the second with No.
Question AskToPlant(int mover, const std::vector<Launch>& launches, const std::string& text, Buttons buttons);

}  // namespace tavrelo::mechanics::projectile
