#include "mechanics/motion/procedures.h"
namespace tavrelo::mechanics::motion {
Step ClickPoint(const Problem& problem, Procedure, const points::PointPlace&, int) {
    return Outcome{problem, {}};
}
Step RunThreePoints(const Problem& problem, std::string_view, int) { return Outcome{problem, {}}; }
Outcome EraseEquations(const Problem& problem) { return Outcome{problem, {}}; }
std::optional<Step> TurnSpeed(const Problem&, const points::PointPlace&, int) { return {}; }
Step Continue(const Problem& problem, const Request&, int) { return Outcome{problem, {}}; }
}  // namespace tavrelo::mechanics::motion
