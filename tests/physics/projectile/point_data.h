#pragma once

#include <optional>

#include "projectile/known_throw.h"

namespace tavrelo::physics {

/// What is typed of a point of a throw; the angle is the direction of the velocity there.
struct TypedPoint {
    std::optional<Typed> t, x, y, speed, angle;

    std::string Told() const;
};

/// The pairs of data from which an unknown of the launch is found.
enum class DataPair { TimeX, TimeY, XY, TimeAngle, XAngle, YAngle, TimeSpeed, XSpeed, YSpeed };
constexpr DataPair kDataPairs[] = {DataPair::TimeX,     DataPair::TimeY,  DataPair::XY,
                                   DataPair::TimeAngle, DataPair::XAngle, DataPair::YAngle,
                                   DataPair::TimeSpeed, DataPair::XSpeed, DataPair::YSpeed};
bool HoldsTime(DataPair pair);
bool HoldsX(DataPair pair);
bool HoldsY(DataPair pair);
bool HoldsAngle(DataPair pair);
bool HoldsSpeed(DataPair pair);

/// A pair of data of a throw at a time: with all its digits or, as in a book, rounded.
TypedPoint TypePair(DataPair pair, const KnownThrow& law, double t, bool is_rounded);

/// Whether a direction counts by its tangent alone, so that the opposite one meets it too.
enum class Direction { Exact, ByTangent };

/// What keeps a throw from meeting all data of a point at one time, empty when nothing does.
std::string WhyNotMet(const KnownThrow& law, const TypedPoint& point, Direction direction);
/// What keeps a throw from being at a place at a time.
std::string WhyNotThere(const KnownThrow& law, double t, double x, double y);

}  // namespace tavrelo::physics
