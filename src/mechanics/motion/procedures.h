#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "mechanics/motion/step.h"
#include "mechanics/points/datum.h"

namespace tavrelo::mechanics::motion {

/// The procedures by the codes under which help and transcripts know them.
enum class Procedure {
    Plant = 40,
    ThreePoints = 41,
    Substitute = 42,
    SubstituteWithParameters = 43,
    Graph = 44,
    Distance = 45,
    Interval = 46,
    PositionDifference = 47,
    PositionRatio = 48,
    SpeedDifference = 49,
    SpeedRatio = 50,
    PositionAndSpeedRatio = 51,
    Link = 52,
    SystemVA = 53,
    SystemV2A = 54,
    SystemV2A2A = 55,
    SystemV2A2AV2A = 56,
    Quadratic = 57,
};

/// What the column of a clicked point says.
struct PointData {
    points::Datum t;
    points::Datum x;
    points::Datum v;
};
/// Reads a clicked point's column. References are checked whatever the procedure: malformed, out of the
/// stretch or out of order they are refused.
std::variant<text::Refusal, PointData> ReadPoint(const Problem& problem, const points::PointPlace& place);

/// A click on the label of a point with a procedure that works on one point: Plant, Substitute or
/// SubstituteWithParameters. Any other changes nothing but still refuses a bad reference.
Step ClickPoint(const Problem& problem, Procedure procedure, const points::PointPlace& place, int decimals);

/// The three-point procedure with the text of the box: "mover, stretch, i, j, k" at first; when the problem
/// awaits a base, the number of that point. Whatever the caller does with another procedure, it resets
/// `problem.awaited_base` first.
Step RunThreePoints(const Problem& problem, std::string_view text, int decimals);

/// The time and speed of a point replaced by the moment of opposite speed; its position is the same. Nothing
/// when the stretch has no complete equations or the speed is no number: then the click counts as an ordinary
/// one. Refused for a uniform motion.
std::optional<Step> TurnSpeed(const Problem& problem, const points::PointPlace& place, int decimals);

/// Forgets all equations and clears their slots of the board; the caller asks for a confirmation first.
Outcome EraseEquations(const Problem& problem);

/// Carries out what the answer to a question named.
Step Continue(const Problem& problem, const Request& request, int decimals);

}  // namespace tavrelo::mechanics::motion
