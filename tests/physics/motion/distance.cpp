// The way walked by a mover between two points of its table.

#include <algorithm>
#include <cmath>

#include "motion/motion_kinds.h"
#include "motion/stretched_motion.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

constexpr double kPart = 1e-9;

/// The area under the size of a speed that goes evenly from one value to another.
double AreaUnder(double first, double last, double duration) {
    if (first * last >= 0)
        return (std::abs(first) + std::abs(last)) / 2 * duration;
    return (first * first + last * last) / (2 * std::abs(last - first)) * duration;
}

/// The points of a mover by their times, the later of two stretches at a limit.
struct Stop {
    mechanics::points::PointPlace place;
    double t;
};

double WalkedBy(const StretchedMotion& mover, double from, double to) {
    double walked = 0;
    for (std::size_t k = 0; k < mover.stretches.size(); ++k) {
        const double start = std::max(from, mover.times[k]);
        const double end = std::min(to, mover.times[k + 1]);
        if (start < end)
            walked += AreaUnder(mover.stretches[k].V(start), mover.stretches[k].V(end), end - start);
    }
    return walked;
}

/// A point within a stretch, typed beside the limits: its middle column.
Stop TypeStop(MotionSheet& sheet, const StretchedMotion& mover, std::size_t stretch) {
    const double middle = Significant((mover.times[stretch] + mover.times[stretch + 1]) / 2, 15).value;
    const int point = PointOfStretch(stretch) + 1;
    sheet.TypeColumn(1, point, {{Form::Number, Significant(middle, 15).text, middle}});
    return {{1, static_cast<int>(stretch) + 1, point}, middle};
}

Stop AnyStop(MotionSheet& sheet, const StretchedMotion& mover, Chance& chance) {
    const std::size_t stretch = chance.Below(mover.stretches.size());
    if (chance.OneIn(2))
        return TypeStop(sheet, mover, stretch);
    return {{1, static_cast<int>(stretch) + 1, PointOfStretch(stretch)}, mover.times[stretch]};
}

}  // namespace

Verdict PlayDistance(Problem& problem) {
    Chance& chance = problem.chance;
    const StretchedMotion mover = AnyStretches(chance);
    problem.Type(mover.Told());
    MotionSheet sheet(problem, LimitsOf(mover));
    PlantStretches(sheet, mover);
    const Stop first = AnyStop(sheet, mover, chance);
    const Stop last = AnyStop(sheet, mover, chance);
    problem.Type("from point " + std::to_string(first.place.point) + " to " +
                 std::to_string(last.place.point));
    const motion::Step step = sheet.ClickPair(motion::Procedure::Distance, {first.place, last.place});
    if (const std::string* message = MessageOf(step))
        return Wrong("refused: " + *message);
    const std::string line = ReportOf(step).back();
    const auto walked = NumberAfter(line, "d");
    const double known = WalkedBy(mover, std::min(first.t, last.t), std::max(first.t, last.t));
    if (!walked || !Agree(*walked, known, kPart, mover.ScaleOfX()))
        return Wrong(line + ", not " + Digits(known));
    return Right();
}

}  // namespace tavrelo::physics
