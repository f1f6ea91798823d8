#include "motion/stretched_motion.h"

#include <algorithm>
#include <cmath>

#include "mechanics/points/table.h"

namespace tavrelo::physics {
namespace {

constexpr int kColumnsOfStretch = 2;
constexpr std::size_t kMostStretches = 3;

}  // namespace

double StretchedMotion::ScaleOfX() const {
    double scale = 0;
    for (std::size_t k = 0; k < stretches.size(); ++k)
        scale =
            std::max({scale, stretches[k].ScaleOfX(times[k + 1]), stretches[k].From(0).ScaleOfX(times[k])});
    return scale;
}

std::string StretchedMotion::Told() const {
    std::string told;
    for (const KnownMotion& stretch : stretches)
        told += stretch.Told() + "; ";
    return told + "to " + Digits(times.back());
}

StretchedMotion AnyStretches(Chance& chance) {
    StretchedMotion motion;
    KnownMotion next = AnyMotion(chance);
    motion.times.push_back(next.tn);
    const std::size_t count = 1 + chance.Below(kMostStretches);
    for (std::size_t k = 0; k < count; ++k) {
        motion.stretches.push_back(next);
        const double end = Significant(next.tn + 0.5 + std::abs(BookNumber(chance, 5)), 15).value;
        motion.times.push_back(end);
        const double x = AllDigits(next.X(end), next.ScaleOfX(end)).value;
        next = {end, x, AllDigits(next.V(end), next.ScaleOfV(end)).value, BookNumber(chance, 8)};
    }
    return motion;
}

int PointOfStretch(std::size_t stretch) { return kColumnsOfStretch * static_cast<int>(stretch); }

std::vector<int> LimitsOf(const StretchedMotion& motion) {
    std::vector<int> limits;
    for (std::size_t k = 1; k < motion.stretches.size(); ++k)
        limits.push_back(PointOfStretch(k));
    return limits;
}

void PlantStretches(MotionSheet& sheet, const StretchedMotion& motion, bool is_end_open) {
    for (std::size_t k = 0; k < motion.stretches.size(); ++k) {
        const int stretch = static_cast<int>(k) + 1;
        sheet.TypeAcceleration(1, stretch, Significant(motion.stretches[k].a, 15).text);
        sheet.TypeBase(1, PointOfStretch(k), motion.stretches[k], true);
        sheet.Plant({1, stretch, PointOfStretch(k)});
    }
    if (is_end_open)
        return;
    const int last = sheet.TheMotion().configuration.MoverAt(1).points - 1;
    const Typed end = Significant(motion.times.back(), 15);
    sheet.TypeColumn(1, last, {{Form::Number, end.text, end.value}});
}

}  // namespace tavrelo::physics
