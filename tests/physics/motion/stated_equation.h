#pragma once

#include <optional>
#include <string>

#include "motion/known_motion.h"

namespace tavrelo::physics {

/// An equation for the base speed v and the acceleration a of a motion, as a report states it:
/// v_squared v^2 + v v + a_squared a^2 + a a = constant.
struct StatedEquation {
    double v_squared = 0;
    double v = 0;
    double a_squared = 0;
    double a = 0;
    double constant = 0;

    /// Left side less right side.
    Sum For(double speed, double acceleration) const;
    bool IsLinear() const { return v_squared == 0 && a_squared == 0; }
};

/// Reads "2 v!3¡2 ;- 0.5 a + a¡2 = ;-7" with the base point 3; nothing when the line is no such equation.
std::optional<StatedEquation> ReadEquation(const std::string& line, int base);

}  // namespace tavrelo::physics
