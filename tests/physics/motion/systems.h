#pragma once

#include "motion/motion_sheet.h"
#include "motion/stated_equation.h"

namespace tavrelo::physics {

/// A speed and an acceleration.
struct SpeedPair {
    double v = 0;
    double a = 0;
};

/// Types two equations in the box of the procedure that solves their shapes, and judges the answers by them.
/// When the equations leave `known` no way round it must be among them. Right when no procedure has these
/// shapes.
Verdict SolveAsSystem(MotionSheet& sheet, const StatedEquation& first, const StatedEquation& second,
                      const SpeedPair& known);

}  // namespace tavrelo::physics
