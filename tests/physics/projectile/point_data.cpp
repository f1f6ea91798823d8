#include "projectile/point_data.h"

#include <algorithm>
#include <cmath>

#include "motion/known_motion.h"

namespace tavrelo::physics {
namespace {

constexpr int kRoundedDecimals = 3;

/// What the data of a point leave at a time, empty when they hold.
std::string WhyNotAt(const KnownThrow& law, const TypedPoint& point, double t, Direction direction) {
    const double d = t - law.t0;
    const double places = law.ScaleOfPlace(t), speeds = law.ScaleOfSpeed(t);
    const auto told = [&](const char* name, const Sum& sum) {
        return "at t = " + Digits(t) + " " + name + " leaves " + sum.Told();
    };
    if (point.x)
        if (const Sum sum = SumOf({law.x0, law.vx * d, -point.x->value}); !Holds(sum, places))
            return told("x", sum);
    if (point.y)
        if (const Sum sum = SumOf({law.y0, law.vy * d, -kGravity / 2 * d * d, -point.y->value});
            !Holds(sum, places))
            return told("y", sum);
    if (point.speed) {
        const double v = point.speed->value;
        if (const Sum sum = SumOf({law.vx * law.vx, law.Vy(t) * law.Vy(t), -v * v});
            !Holds(sum, speeds * speeds) || v < 0)
            return told("v", sum);
    }
    if (point.angle) {
        const double s = SinDegrees(point.angle->value), c = CosDegrees(point.angle->value);
        if (const Sum sum = SumOf({law.vx * s, -law.vy * c, kGravity * d * c}); !Holds(sum, speeds))
            return told("the angle", sum);
        if (direction == Direction::Exact && law.vx * c + law.Vy(t) * s < 0)
            return "at t = " + Digits(t) + " it flies the other way";
    }
    return {};
}

/// The times at which one datum may be met; nothing when it is met at any time.
std::optional<std::vector<double>> TimesOf(const KnownThrow& law, const TypedPoint& point) {
    if (point.t)
        return std::vector{point.t->value};
    if (point.x && law.vx != 0)
        return std::vector{law.t0 + (point.x->value - law.x0) / law.vx};
    if (point.y)
        return law.TimesAtY(point.y->value);
    return std::nullopt;
}

}  // namespace

std::string TypedPoint::Told() const {
    std::string told;
    const auto add = [&](const char* name, const std::optional<Typed>& datum) {
        if (datum)
            told += std::string(told.empty() ? "" : ", ") + name + " = " + datum->text;
    };
    add("t", t);
    add("x", x);
    add("y", y);
    add("v", speed);
    add("angle", angle);
    return told;
}

bool HoldsTime(DataPair pair) {
    return pair == DataPair::TimeX || pair == DataPair::TimeY || pair == DataPair::TimeAngle ||
           pair == DataPair::TimeSpeed;
}

bool HoldsX(DataPair pair) {
    return pair == DataPair::TimeX || pair == DataPair::XY || pair == DataPair::XAngle ||
           pair == DataPair::XSpeed;
}

bool HoldsY(DataPair pair) {
    return pair == DataPair::TimeY || pair == DataPair::XY || pair == DataPair::YAngle ||
           pair == DataPair::YSpeed;
}

bool HoldsAngle(DataPair pair) {
    return pair == DataPair::TimeAngle || pair == DataPair::XAngle || pair == DataPair::YAngle;
}

bool HoldsSpeed(DataPair pair) {
    return pair == DataPair::TimeSpeed || pair == DataPair::XSpeed || pair == DataPair::YSpeed;
}

TypedPoint TypePair(DataPair pair, const KnownThrow& law, double t, bool is_rounded) {
    const auto typed = [&](double value, double scale) {
        return is_rounded ? Rounded(value, kRoundedDecimals) : AllDigits(value, scale);
    };
    TypedPoint point;
    if (HoldsTime(pair))
        point.t = typed(t, std::abs(t));
    if (HoldsX(pair))
        point.x = typed(law.X(t), law.ScaleOfPlace(t));
    if (HoldsY(pair))
        point.y = typed(law.Y(t), law.ScaleOfPlace(t));
    if (HoldsAngle(pair))
        point.angle = typed(law.Angle(t), 180);
    if (HoldsSpeed(pair))
        point.speed = typed(law.Speed(t), law.ScaleOfSpeed(t));
    return point;
}

std::string WhyNotMet(const KnownThrow& law, const TypedPoint& point, Direction direction) {
    const auto times = TimesOf(law, point);
    if (!times)
        return {};
    std::string why = "no time has the data";
    for (const double t : *times) {
        why = WhyNotAt(law, point, t, direction);
        if (why.empty())
            return {};
    }
    return why;
}

std::string WhyNotThere(const KnownThrow& law, double t, double x, double y) {
    TypedPoint point;
    point.t = Typed{Digits(t), t};
    point.x = Typed{Digits(x), x};
    point.y = Typed{Digits(y), y};
    return WhyNotMet(law, point, Direction::ByTangent);
}

}  // namespace tavrelo::physics
