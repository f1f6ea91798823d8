#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "text/refusal.h"

/// Two consecutive stretches of a mover: from a point a of the first to a point c of the second, through the
/// junction b, where position and speed go on and the acceleration changes.
namespace tavrelo::mechanics::motion {

inline constexpr std::string_view kEqualAccelerations = "Las aceleraciones no pueden ser iguales.";
inline constexpr std::string_view kNoLink = "No hay solución.";

/// A point of the motion.
struct MotionPoint {
    double t = 0;
    double x = 0;
    double v = 0;

    friend bool operator==(const MotionPoint&, const MotionPoint&) = default;
};

/// The data of a link of which one is missing.
enum class LinkDatum { FirstAcceleration, SecondAcceleration, FinalTime, FinalPosition, FinalSpeed };

/// What is known: all of a, and four of the five others.
struct LinkData {
    MotionPoint a;
    std::optional<double> first_acceleration, second_acceleration;
    std::optional<double> tc, xc, vc;

    /// Fails with TypeMismatch unless exactly one is missing.
    LinkDatum Missing() const;
};

/// A motion through both stretches.
struct LinkedMotion {
    MotionPoint junction;
    MotionPoint end;
    double first_acceleration = 0;
    double second_acceleration = 0;

    friend bool operator==(const LinkedMotion&, const LinkedMotion&) = default;
};

/// The motions that the data leave, at most two, with ta <= tb <= tc. The junction comes from
///     xc = xa + va T + a1 T^2/2 + (a2 - a1) y^2/2,   vc = va + a1 T + (a2 - a1) y,   T = tc - ta, y = tc -
///     tb,
/// or, when tc is missing, from the squares of the speeds; of its two speeds the positive first. Refuses
/// equal accelerations and data without a motion; fails with TypeMismatch unless exactly one datum is
/// missing.
std::variant<text::Refusal, std::vector<LinkedMotion>> SolveLink(const LinkData& data);

}  // namespace tavrelo::mechanics::motion
