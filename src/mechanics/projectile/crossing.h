#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/projectile/launch.h"
#include "mechanics/projectile/worked.h"

namespace tavrelo::mechanics::projectile {

/// A point where two trajectories meet and the times at which the movers pass it, before the launch too.
struct Crossing {
    double x = 0.0;
    double y = 0.0;
    double first_time = 0.0;
    double second_time = 0.0;

    /// Both are there at once.
    bool IsCollision() const;
};
/// Where the trajectories of two complete launches meet, in the order of the roots. Refused when one is
/// missing or upright and when they do not meet, the same parabola included.
std::variant<text::Refusal, std::vector<Crossing>> CrossTrajectories(const Equations& first,
                                                                     const Equations& second);
/// A collision alone when there is one, else every point.
std::vector<std::string> CrossingReport(const std::vector<Crossing>& crossings, int decimals);

/// Where a trajectory meets the straight line through a point.
struct InclineHit {
    double x = 0.0;
    double y = 0.0;
    double t = 0.0;
    double range = 0.0;  // from the point of the line, never negative
};
/// The line goes through (x, y) with the slope of `degrees`. A hit at the launch itself counts. Refused for
/// equations that are not complete, an upright launch or line, and a line that is missed.
std::variant<text::Refusal, std::vector<InclineHit>> RangeOnPlane(int mover, const Equations& equations,
                                                                  double x, double y, double degrees);
std::vector<std::string> InclineReport(const std::vector<InclineHit>& hits, int decimals);
/// What is said when the mover or the point lacks the data.
inline constexpr const char* kSolveOtherwise = "Resuelve el problema de otra manera.";

/// The length of the trajectory between two times, in either order, by Simpson's rule over x. Nothing for an
/// upright launch, which has no trajectory. Fails with Overflow.
std::optional<double> PathLength(const Flight& flight, double first_time, double second_time);
std::vector<std::string> PathReport(int mover, const Flight& flight, double first_time, double second_time,
                                    double length, int decimals);

}  // namespace tavrelo::mechanics::projectile
