#pragma once

#include "motion/motion_sheet.h"

namespace tavrelo::physics {

/// A mover whose acceleration changes at known times: each stretch goes on where the one before ends.
struct StretchedMotion {
    std::vector<KnownMotion> stretches;
    std::vector<double> times;  // the start, every change, and the end

    double ScaleOfX() const;
    std::string Told() const;
};

/// One to three stretches of some seconds each.
StretchedMotion AnyStretches(Chance& chance);

/// The limits to be clicked in the table, the last point left out; a stretch spans two columns.
std::vector<int> LimitsOf(const StretchedMotion& motion);
/// The point with which a stretch begins, from 0; that of the end for the number of stretches.
int PointOfStretch(std::size_t stretch);

/// Plants every stretch on its first point, as the mover 1 of a sheet, and so types the times of the limits;
/// the time of the end too unless it is left open.
void PlantStretches(MotionSheet& sheet, const StretchedMotion& motion, bool is_end_open = false);

}  // namespace tavrelo::physics
