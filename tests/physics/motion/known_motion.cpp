#include "motion/known_motion.h"

#include <algorithm>
#include <cmath>

#include "equations.h"

namespace tavrelo::physics {
namespace {

constexpr double kPartOfRounding = 1e-9;
constexpr double kPartOfLaterRounding = 1e-12;
constexpr int kDigits = 15;

double LargestOf(std::initializer_list<double> terms) {
    double largest = 0;
    for (const double term : terms)
        largest = std::max(largest, std::abs(term));
    return largest;
}

KnownInterval InUnits(const KnownInterval& plain, double length, double time) {
    const auto typed = [](double number) { return Significant(number, kDigits).value; };
    const KnownMotion& m = plain.motion;
    return {{typed(m.tn * time), typed(m.xn * length), typed(m.vn * length / time),
             typed(m.a * length / (time * time))},
            typed(plain.ti * time),
            typed(plain.tf * time)};
}

}  // namespace

double BookNumber(Chance& chance, double limit) {
    const double number = chance.Between(-limit, limit);
    constexpr int kDecimals[] = {0, 0, 0, 1, 1, 2};
    switch (chance.Below(10)) {
        case 0:
            return Significant(number, kDigits).value;
        case 1:
        case 2:
        case 3:
            return Rounded(std::round(2 * number) / 2, 1).value;
        default:
            return Rounded(number, chance.Of(kDecimals)).value;
    }
}

double KnownMotion::ScaleOfX(double t) const {
    return LargestOf({xn, vn * (t - tn), a * (t - tn) * (t - tn) / 2});
}

double KnownMotion::ScaleOfV(double t) const { return LargestOf({vn, a * (t - tn)}); }

std::optional<std::vector<double>> KnownMotion::TimesAtX(double x) const {
    const double away = x - xn;
    if (a == 0) {
        if (vn == 0)
            return IsNearlyZero(away, LargestOf({x, xn})) ? std::nullopt
                                                          : std::optional(std::vector<double>{});
        return std::vector{tn + away / vn};
    }
    const double square = vn * vn + 2 * a * away;
    if (square < 0 && !SumOf({vn * vn, 2 * a * x, -2 * a * xn}).Vanishes())
        return std::vector<double>{};
    // Speeds of one sign are added: the other time comes from the product of both.
    const double sum = -vn - std::copysign(std::sqrt(std::max(0.0, square)), vn);
    return sum == 0 ? std::vector{tn} : std::vector{tn + sum / a, tn - 2 * away / sum};
}

std::optional<std::vector<double>> KnownMotion::TimesAtV(double v) const {
    if (a == 0)
        return IsNearlyZero(vn - v, LargestOf({vn, v})) ? std::nullopt : std::optional(std::vector<double>{});
    return std::vector{tn + (v - vn) / a};
}

std::string KnownMotion::Told() const {
    return "t = " + Digits(tn) + ": x = " + Digits(xn) + ", v = " + Digits(vn) + "; a = " + Digits(a);
}

KnownMotion AnyMotion(Chance& chance) {
    const bool starts_at_zero = chance.OneIn(2);
    return {starts_at_zero ? 0 : BookNumber(chance, 5), BookNumber(chance, 20), BookNumber(chance, 15),
            BookNumber(chance, 8)};
}

double KnownInterval::ScaleOfX() const { return std::max(motion.ScaleOfX(ti), motion.ScaleOfX(tf)); }

double KnownInterval::ScaleOfV() const { return std::max(motion.ScaleOfV(ti), motion.ScaleOfV(tf)); }

std::string KnownInterval::Told() const {
    return motion.Told() + "; from " + Digits(ti) + " to " + Digits(tf);
}

KnownInterval PlainInterval(Chance& chance) {
    const KnownMotion motion = AnyMotion(chance);
    return {motion, BookNumber(chance, 8), BookNumber(chance, 8)};
}

KnownInterval AnyInterval(Chance& chance) {
    const KnownInterval plain = PlainInterval(chance);
    if (!chance.OneIn(10))
        return plain;
    constexpr double kLengths[] = {0x1p-20, 0x1p-10, 0x1p10, 0x1p20};
    constexpr double kTimes[] = {0x1p-10, 1, 0x1p12};
    const double length = chance.Of(kLengths);
    return InUnits(plain, length, chance.Of(kTimes));
}

bool Holds(const Sum& sum, double scale) {
    return sum.Vanishes() || std::abs(sum.Value()) <= kPartOfLaterRounding * scale;
}

bool IsNearlyZero(double value, double scale) { return std::abs(value) <= kPartOfRounding * scale; }

Typed AllDigits(double value, double scale) {
    const int whole = scale > 0 ? 1 + static_cast<int>(std::floor(std::log10(scale))) : 1;
    return Rounded(value, std::max(kDigits - whole, 0));
}

}  // namespace tavrelo::physics
