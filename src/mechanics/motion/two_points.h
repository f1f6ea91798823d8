#pragma once

#include <optional>

#include "mechanics/motion/procedures.h"

namespace tavrelo::mechanics::motion {

/// Whether a procedure takes two clicks on points: the graph, the distance and the link.
bool TakesTwoPoints(Procedure procedure);

/// Two clicked points, in the order of the clicks.
struct PointPair {
    points::PointPlace first;
    points::PointPlace second;

    friend bool operator==(const PointPair&, const PointPair&) = default;
};

/// The clicks of a procedure that takes two points. Choosing a procedure, even the same again, and leaving
/// the tool forget the first one; a second click ends the pair, whatever becomes of it.
class PendingPoint {
  public:
    /// The pair, when a first point was waiting.
    std::optional<PointPair> Click(const points::PointPlace& place);
    void Forget() { m_first.reset(); }
    bool IsWaiting() const { return m_first.has_value(); }

    friend bool operator==(const PendingPoint&, const PendingPoint&) = default;

  private:
    std::optional<points::PointPlace> m_first;
};

/// The distance or the link of a pair. Any other procedure, the graph too (GraphBetween), changes nothing.
Step RunOnPair(const Problem& problem, Procedure procedure, const PointPair& pair, int decimals);

}  // namespace tavrelo::mechanics::motion
