#include "mechanics/motion/typed_procedures.h"

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "mechanics/motion/equation_systems.h"
#include "mechanics/motion/interval_equations.h"
#include "mechanics/motion/two_movers.h"

namespace tavrelo::mechanics::motion {

namespace {

using Report = std::variant<text::Refusal, std::vector<std::string>>;

/// A report changes nothing of the problem.
Step Reported(const Problem& problem, Report report) {
    if (auto* refusal = std::get_if<text::Refusal>(&report))
        return std::move(*refusal);
    return Outcome{problem, {WriteLines{std::move(std::get<std::vector<std::string>>(report))}}};
}

}  // namespace

Step RunTyped(const Problem& problem, Procedure procedure, std::string_view typed, int decimals) {
    const auto system = [&](SystemShape shape) {
        return Reported(problem, ReportSystem(shape, typed, decimals));
    };
    switch (procedure) {
        case Procedure::ThreePoints:
            return RunThreePoints(problem, typed, decimals);
        case Procedure::Interval:
            return Reported(problem, ApplyIntervalEquations(typed, decimals));
        case Procedure::PositionDifference:
            return ApplyRelation(problem, Relation::PositionDifference, typed, decimals);
        case Procedure::PositionRatio:
            return ApplyRelation(problem, Relation::PositionRatio, typed, decimals);
        case Procedure::SpeedDifference:
            return ApplyRelation(problem, Relation::SpeedDifference, typed, decimals);
        case Procedure::SpeedRatio:
            return ApplyRelation(problem, Relation::SpeedRatio, typed, decimals);
        case Procedure::PositionAndSpeedRatio:
            return ApplyRatios(problem, typed, decimals);
        case Procedure::SystemVA:
            return system(SystemShape::VA_VA);
        case Procedure::SystemV2A:
            return system(SystemShape::V2A_VA);
        case Procedure::SystemV2A2A:
            return system(SystemShape::V2A2A_VA);
        case Procedure::SystemV2A2AV2A:
            return system(SystemShape::V2A2A_V2A);
        case Procedure::Quadratic:
            return Reported(problem, ReportQuadratic(typed, decimals));
        default:
            return Outcome{problem, {}};
    }
}

}  // namespace tavrelo::mechanics::motion
