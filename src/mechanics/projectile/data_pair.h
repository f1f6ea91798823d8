#pragma once

#include <optional>
#include <string>

#include "mechanics/projectile/launch.h"

namespace tavrelo::mechanics::projectile {

/// The two data of a point from which a parameter of the launch is found.
enum class Pair { TimeX, TimeY, XY, TimeAngle, XAngle, YAngle, TimeSpeed, XSpeed, YSpeed };
inline constexpr int kPairs = 9;

/// Two data of a point; what the pair does not name is 0. `angle` is the direction of the velocity at the
/// point, `speed` its magnitude.
struct PairData {
    Pair pair = Pair::TimeX;
    double t = 0.0;
    double x = 0.0;
    double y = 0.0;
    double speed = 0.0;
    double angle = 0.0;
};

/// What a pair holds.
bool HoldsTime(Pair pair);
bool HoldsX(Pair pair);
bool HoldsY(Pair pair);
bool HoldsSpeed(Pair pair);
bool HoldsAngle(Pair pair);

/// The pair of exactly two data; nothing for any other number of them, and for speed with angle.
std::optional<PairData> PairOf(const std::optional<double>& t, const std::optional<double>& x,
                               const std::optional<double>& y, const std::optional<double>& speed,
                               const std::optional<double>& angle);

/// "t!2 = 3, ;a = 30°": the pair at a point in markup.
std::string PairText(int mover, int point, const PairData& data, int decimals);

}  // namespace tavrelo::mechanics::projectile
