#pragma once

#include "mechanics/motion/step.h"

namespace tavrelo::mechanics::motion {

/// The way walked between two clicked points of one mover, in either order: every stretch and, where the
/// mover turns back, every part of it adds the size of its displacement. Refuses and fails like LegsBetween.
Step WalkedDistance(const Problem& problem, const points::PointPlace& first, const points::PointPlace& second,
                    int decimals);

}  // namespace tavrelo::mechanics::motion
