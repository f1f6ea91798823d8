#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/motion/problem.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::motion {

/// What two clicks on points of different movers are told.
inline constexpr std::string_view kSpansMovers = "Estás abarcando 2 móviles.";

/// A part of a motion under one acceleration, from an earlier to a later time.
struct Leg {
    int mover = 1;
    int stretch = 1;
    double from = 0;
    double to = 0;
    Motion motion;
};

/// The parts of the motion between two points of one mover, stretch by stretch, parted at the times of the
/// points that stretches share; parts of no duration are left out. Refuses points of two movers and a stretch
/// without complete equations. Fails with TypeMismatch where a time is missing in the table and with
/// OutOfDomain when the times do not ascend from `first` to `last`.
std::variant<text::Refusal, std::vector<Leg>> LegsBetween(const Problem& problem,
                                                          const points::PointPlace& first,
                                                          const points::PointPlace& last);

/// The time of a point in the table; fails with TypeMismatch when there is none.
double RequiredTimeOf(const Problem& problem, const points::PointPlace& place);

/// When the mover turns back within the leg, the ends excluded.
std::optional<double> TurningTime(const Leg& leg);

}  // namespace tavrelo::mechanics::motion
