#include "mechanics/motion/two_points.h"

#include <utility>

#include "mechanics/motion/distance.h"
#include "mechanics/motion/link_stretches.h"

namespace tavrelo::mechanics::motion {

bool TakesTwoPoints(Procedure procedure) {
    return procedure == Procedure::Graph || procedure == Procedure::Distance || procedure == Procedure::Link;
}

std::optional<PointPair> PendingPoint::Click(const points::PointPlace& place) {
    if (!m_first) {
        m_first = place;
        return std::nullopt;
    }
    const PointPair pair = {*std::exchange(m_first, std::nullopt), place};
    return pair;
}

Step RunOnPair(const Problem& problem, Procedure procedure, const PointPair& pair, int decimals) {
    if (procedure == Procedure::Distance)
        return WalkedDistance(problem, pair.first, pair.second, decimals);
    if (procedure == Procedure::Link)
        return LinkStretches(problem, pair.first, pair.second, decimals);
    return Outcome{problem, {}};
}

}  // namespace tavrelo::mechanics::motion
