#include "mechanics/motion/times.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

std::optional<double> TimeOf(const Problem& problem, int mover, int point) {
    const int column = points::ColumnOfPoint(problem.configuration, mover, point);
    const text::Value& value = problem.table.Stored(points::kTimeRow, column);
    if (!text::IsNum(value))
        return std::nullopt;
    return value.Number();
}

double TimeSlack(double first, double last) {
    constexpr double kRounding = 1e-9;
    return kRounding * std::max(std::abs(first), std::abs(last));
}

bool IsWithinStretch(const Problem& problem, int mover, int stretch, double t) {
    const points::Stretch& limits = problem.configuration.StretchAt(mover, stretch);
    const auto first = TimeOf(problem, mover, limits.first);
    const auto last = TimeOf(problem, mover, limits.last);
    if (!first || !last)
        return true;
    const auto [from, to] = std::minmax(*first, *last);
    const double slack = TimeSlack(from, to);
    return t >= from - slack && t <= to + slack;
}

}  // namespace tavrelo::mechanics::motion
