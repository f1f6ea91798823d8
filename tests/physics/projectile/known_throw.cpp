#include "projectile/known_throw.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "motion/known_motion.h"

namespace tavrelo::physics {
namespace {

constexpr double kPartOfDoubleRoot = 1e-4;
// The numbers of a launch are kept with twelve decimals.
constexpr double kLeastScale = 10;

}  // namespace

double KnownThrow::Y(double t) const { return y0 + vy * (t - t0) - kGravity / 2 * (t - t0) * (t - t0); }

double KnownThrow::Vy(double t) const { return vy - kGravity * (t - t0); }

double KnownThrow::Speed(double t) const { return std::hypot(vx, Vy(t)); }

double KnownThrow::Angle(double t) const { return std::atan2(Vy(t), vx) * 180 / std::numbers::pi; }

std::vector<double> KnownThrow::TimesAtY(double y) const {
    const double square = vy * vy - 2 * kGravity * (y - y0);
    if (square < 0 && !SumOf({vy * vy, -2 * kGravity * y, 2 * kGravity * y0}).Vanishes())
        return {};
    const double root = std::sqrt(std::max(0.0, square));
    return {t0 + (vy + root) / kGravity, t0 + (vy - root) / kGravity};
}

double KnownThrow::ScaleOfPlace(double t) const {
    const double latest = 1 + std::abs(t) + std::abs(t0);
    return std::max({kLeastScale, std::abs(x0), std::abs(y0), std::abs(vx) * latest, std::abs(vy) * latest,
                     kGravity / 2 * latest * latest});
}

double KnownThrow::ScaleOfSpeed(double t) const {
    return std::max({kLeastScale, std::abs(vx), std::abs(vy), kGravity * (std::abs(t) + std::abs(t0))});
}

std::string KnownThrow::Told() const {
    return "t0 = " + Digits(t0) + ", x0 = " + Digits(x0) + ", y0 = " + Digits(y0) + ", vx = " + Digits(vx) +
           ", vy = " + Digits(vy);
}

KnownThrow ThrowFrom(const KnownThrow& start, SpeedForm form, double first, double second) {
    KnownThrow law = start;
    law.vx = form == SpeedForm::Polar ? first * CosDegrees(second) : first;
    law.vy = form == SpeedForm::Polar ? first * SinDegrees(second) : second;
    return law;
}

double BookAngle(Chance& chance) {
    constexpr double kUsual[] = {0, 30, 37, 45, 53.13, 60, 75, 90, -30, -45, -90, 120, 135, 150, 180};
    switch (chance.Below(4)) {
        case 0:
            return chance.Of(kUsual);
        case 1:
            return Significant(chance.Between(-179.0, 180.0), 15).value;
        default:
            return Rounded(chance.Between(-80.0, 170.0), chance.Between(0, 1)).value;
    }
}

TypedThrow PolarThrow(const KnownThrow& start, double vx, double vy) {
    TypedThrow each = {start, SpeedForm::Polar, Significant(std::hypot(vx, vy), 15),
                       Significant(std::atan2(vy, vx) * 180 / std::numbers::pi, 15)};
    each.law = ThrowFrom(start, SpeedForm::Polar, each.first.value, each.second.value);
    return each;
}

bool IsSameLaunch(const KnownThrow& found, const KnownThrow& known) {
    const double scale = known.ScaleOfSpeed(known.t0);
    return Agree(found.vx, known.vx, kPartOfDoubleRoot, scale) &&
           Agree(found.vy, known.vy, kPartOfDoubleRoot, scale);
}

TypedThrow InSize(const TypedThrow& plain, double length) {
    const auto typed = [](double number) { return Significant(number, 15); };
    const double root = std::sqrt(length);
    const bool is_polar = plain.form == SpeedForm::Polar;
    TypedThrow each = plain;
    each.law.t0 = typed(plain.law.t0 * root).value;
    each.law.x0 = typed(plain.law.x0 * length).value;
    each.law.y0 = typed(plain.law.y0 * length).value;
    each.first = typed(plain.first.value * root);
    each.second = is_polar ? plain.second : typed(plain.second.value * root);
    each.law = ThrowFrom(each.law, each.form, each.first.value, each.second.value);
    return each;
}

TypedThrow AnyThrow(Chance& chance, SpeedForm form) {
    const bool starts_at_zero = chance.OneIn(2);
    const bool starts_at_origin = chance.OneIn(4);
    const auto place = [&](double limit) { return starts_at_origin ? 0 : BookNumber(chance, limit); };
    TypedThrow each;
    each.law = {starts_at_zero ? 0 : BookNumber(chance, 3), place(20), place(60)};
    each.form = form;
    const double first =
        form == SpeedForm::Polar ? 0.5 + std::abs(BookNumber(chance, 60)) : BookNumber(chance, 40);
    const double second = form == SpeedForm::Polar ? BookAngle(chance) : BookNumber(chance, 40);
    each.first = Significant(first, 15);
    each.second = Significant(second, 15);
    each.law = ThrowFrom(each.law, form, each.first.value, each.second.value);
    return each;
}

}  // namespace tavrelo::physics
