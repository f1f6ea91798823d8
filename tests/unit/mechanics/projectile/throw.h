#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "mechanics/projectile/data_pair.h"

namespace tavrelo::mechanics::projectile::testing {

/// A throw reckoned here from v = (vx, vy - g t), on its own, to judge what the program finds.
struct Throw {
    double t0, x0, y0, vx, vy;

    double X(double t) const { return x0 + vx * (t - t0); }
    double Y(double t) const { return y0 + vy * (t - t0) - 4.9 * (t - t0) * (t - t0); }
    double Vy(double t) const { return vy - 9.8 * (t - t0); }
    double V(double t) const { return std::hypot(vx, Vy(t)); }
    double Angle(double t) const { return std::atan2(Vy(t), vx) * 180.0 / M_PI; }
    double V0() const { return std::hypot(vx, vy); }
    double Theta() const { return std::atan2(vy, vx) * 180.0 / M_PI; }
    Start From() const { return {t0, x0, y0}; }
};

inline Throw FromPolar(const Start& start, double speed, double degrees) {
    const double angle = degrees * M_PI / 180.0;
    return {start.t, start.x, start.y, speed * std::cos(angle), speed * std::sin(angle)};
}

/// Random throws from a fixed seed: up or down, to either side, from anywhere near, at times that are not all
/// 0.
class Throws {
  public:
    explicit Throws(unsigned seed) : m_generator(seed) {}

    double Between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_generator);
    }
    bool Coin() { return Between(0, 1) < 0.5; }
    Throw Next() {
        const double speed = Between(3, 60);
        const double angle = Between(-179, 179);
        const double start = Coin() ? 0.0 : Between(-2, 3);
        return FromPolar({start, Between(-20, 20), Between(-10, 90)}, speed, angle);
    }
    /// A time after the launch.
    double TimeIn(const Throw& motion) { return motion.t0 + Between(0.1, 6); }

  private:
    std::mt19937 m_generator;
};

/// Relative to the size of the numbers, at least 1.
inline bool Near(double a, double b, double tolerance = 1e-6) {
    return std::abs(a - b) <= tolerance * std::max({1.0, std::abs(a), std::abs(b)});
}

/// What the point of a throw at a time tells as a pair of data.
inline PairData PairAt(Pair pair, const Throw& motion, double t) {
    return {pair, t, motion.X(t), motion.Y(t), motion.V(t), motion.Angle(t)};
}

/// The times at which a throw may meet the first datum of a pair.
inline std::vector<double> TimesOf(const Throw& motion, const PairData& data) {
    if (HoldsTime(data.pair))
        return {data.t};
    if (HoldsX(data.pair)) {
        if (std::abs(motion.vx) < 1e-7)
            return {};
        return {motion.t0 + (data.x - motion.x0) / motion.vx};
    }
    const double under = std::max(0.0, motion.vy * motion.vy - 19.6 * (data.y - motion.y0));
    return {motion.t0 + (motion.vy + std::sqrt(under)) / 9.8,
            motion.t0 + (motion.vy - std::sqrt(under)) / 9.8};
}

/// Whether the throw meets both data at one time; an angle may be met by its tangent alone.
inline bool Meets(const Throw& motion, const PairData& data, bool by_tangent, double tolerance = 1e-5) {
    for (const double t : TimesOf(motion, data)) {
        bool meets = true;
        if (HoldsX(data.pair))
            meets = meets && Near(motion.X(t), data.x, tolerance);
        if (HoldsY(data.pair))
            meets = meets && Near(motion.Y(t), data.y, tolerance);
        if (HoldsSpeed(data.pair))
            meets = meets && Near(motion.V(t), data.speed, tolerance);
        if (HoldsAngle(data.pair)) {
            const double angle = data.angle * M_PI / 180.0;
            // The velocity is parallel to the direction, and points along it.
            const double across = motion.vx * std::sin(angle) - motion.Vy(t) * std::cos(angle);
            const double along = motion.vx * std::cos(angle) + motion.Vy(t) * std::sin(angle);
            meets = meets && std::abs(across) <= tolerance * std::max(1.0, motion.V(t)) &&
                    (by_tangent || along > 0.0);
        }
        if (meets)
            return true;
    }
    return false;
}

}  // namespace tavrelo::mechanics::projectile::testing
