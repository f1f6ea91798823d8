#pragma once

#include <optional>

#include "mechanics/motion/labels.h"
#include "mechanics/motion/procedures.h"

namespace tavrelo::mechanics::motion {

/// How a datum tells its quantity: by a number, or by an increment or a factor over an earlier point.
enum class Form { Number, Increment, Factor };

/// A kind of datum: "t is a number", "x is a multiple of that of another point".
struct DatumKey {
    Quantity quantity;
    Form form;
};

inline constexpr DatumKey kTime = {Quantity::Time, Form::Number};
inline constexpr DatumKey kPosition = {Quantity::Position, Form::Number};
inline constexpr DatumKey kSpeed = {Quantity::Speed, Form::Number};
inline constexpr DatumKey kTimeIncrement = {Quantity::Time, Form::Increment};
inline constexpr DatumKey kPositionIncrement = {Quantity::Position, Form::Increment};
inline constexpr DatumKey kSpeedIncrement = {Quantity::Speed, Form::Increment};
inline constexpr DatumKey kTimeFactor = {Quantity::Time, Form::Factor};
inline constexpr DatumKey kPositionFactor = {Quantity::Position, Form::Factor};
inline constexpr DatumKey kSpeedFactor = {Quantity::Speed, Form::Factor};

/// The row of the table that holds a quantity.
int RowOf(Quantity quantity);

/// The number, increment or factor of a point's datum when it has the form of the key.
std::optional<double> ValueOf(const PointData& data, const DatumKey& key);
/// The point to which the datum of a quantity refers; nothing when it is no reference.
std::optional<int> ReferredBy(const PointData& data, Quantity quantity);

/// The data of two keys as a click gives them.
struct PairValues {
    double first = 0;
    double second = 0;
    /// The earlier point, where a datum refers to one.
    std::optional<int> referred;
};
/// Nothing unless the point has both data; two references must be to one point.
std::optional<PairValues> ValuesOf(const PointData& data, const DatumKey& first, const DatumKey& second);

}  // namespace tavrelo::mechanics::motion
