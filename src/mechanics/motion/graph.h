#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/motion/problem.h"
#include "text/refusal.h"

/// The graph of position against time, as numbers: what a picture needs to know, and nothing of pixels.
namespace tavrelo::mechanics::motion {

inline constexpr std::string_view kStartsAtAnEnd = "El tiempo inicial no puede estar al final de un tramo.";
inline constexpr std::string_view kEndsAtAStart = "El tiempo final no puede estar al inicio de un tramo.";

/// The names at the ends of the axes, across and upward.
inline constexpr std::string_view kTimeAxis = "t";
inline constexpr std::string_view kPositionAxis = "x";

/// The part of a mover's curve that lies in one stretch, as a line through points of ascending time; the
/// moment of turning is one of them. A uniform motion has two points.
struct GraphCurve {
    int mover = 1;
    int stretch = 1;
    std::vector<double> times;
    std::vector<double> positions;
};

/// A curve's name, and one of its stretches, whose colour it takes.
struct GraphName {
    std::string_view name;
    int mover = 1;
    int stretch = 1;
};

/// Curves in one frame: from the first to the last time, and from the least to the greatest position of all
/// curves (equal for a mover at rest).
struct MotionGraph {
    double first_time = 0;
    double last_time = 0;
    double least_position = 0;
    double greatest_position = 0;
    std::vector<GraphCurve> curves;  // those of the clicked mover first
    std::vector<GraphName> names;    // "X" or "x" for the other mover, when it is there
};

/// The graph between two clicked points of one mover. The other mover joins, from the first to the last time
/// that the table has for points of a stretch, within the frame, where that stretch has complete equations.
/// Refuses points of two movers, a start on the last point of a stretch, an end on a first one, and a stretch
/// without equations. Fails with TypeMismatch where a time is missing, and with OutOfDomain when the times do
/// not ascend.
std::variant<text::Refusal, MotionGraph> GraphBetween(const Problem& problem, const points::PointPlace& first,
                                                      const points::PointPlace& last);

}  // namespace tavrelo::mechanics::motion
