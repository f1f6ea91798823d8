#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/problem.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::motion {

/// An interval of a known motion, told by two relations between its ends: the start and the end, by time.
struct Interval {
    double ti;
    double tf;
};
/// The intervals found, one or two in the order in which they are shown, or why there are none.
using Intervals = std::variant<text::Refusal, std::vector<Interval>>;

// Which interval of the motion fits, by what is known of it. `dt`, `dx`, `dv` are increments from start to
// end; `c` is the factor by which a quantity at the end is that of the start. The relations are those of X(t)
// = x0 + v0 t + a t^2 / 2 and V(t) = v0 + a t.

Intervals IntervalOfDtDx(const Motion& motion, double dt, double dx);
Intervals IntervalOfDxDv(const Motion& motion, double dx, double dv);
Intervals IntervalOfDtPositionFactor(const Motion& motion, double dt, double c);
Intervals IntervalOfDtSpeedFactor(const Motion& motion, double dt, double c);
Intervals IntervalOfDxTimeFactor(const Motion& motion, double dx, double c);
Intervals IntervalOfDxSpeedFactor(const Motion& motion, double dx, double c);
Intervals IntervalOfDvTimeFactor(const Motion& motion, double dv, double c);
Intervals IntervalOfDvPositionFactor(const Motion& motion, double dv, double c);

}  // namespace tavrelo::mechanics::motion
