#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "mechanics/rigid/chain_vectors.h"
#include "mechanics/rigid/line_command.h"
#include "mechanics/rigid/rigid_problem.h"

// The steps of the configuration. Each takes a problem and gives a new one; forces stay at their points.

namespace tavrelo::mechanics::rigid {

/// A problem after a change of its vectors. They are seen from the origin that was asked for, or from the old
/// one when that has no coordinates, and then it is told.
struct StructureStep {
    RigidProblem problem;
    std::optional<text::Refusal> unknown_origin;
};

/// With a chain of vectors more. The first point of all is the origin, whatever was asked for. Fails with
/// Overflow.
std::variant<ChainRefusal, StructureStep> WithVectors(const RigidProblem& problem, const ChainEntry& entry,
                                                      std::string_view origin, int decimals);

/// Without the last vector, see Shortened, and without diagrams; letters that no vector holds any more leave
/// the systems, and the lines through them go. An empty problem when no vector remains. A lost origin becomes
/// the first point, whatever was asked for. Fails with Overflow.
StructureStep WithoutLastVector(const RigidProblem& problem, std::string_view origin);

/// Seen from another origin; refused when that has no coordinates. Fails with Overflow.
std::variant<text::Refusal, RigidProblem> WithOrigin(const RigidProblem& problem, std::string_view origin);

/// With these letters as a system (1 to 5); fails with SubscriptRange for any other number.
RigidProblem WithSystem(RigidProblem problem, int system, std::string_view letters);

/// With a line drawn, or without a cancelled one; a line that is not there cannot be cancelled, and an entry
/// may ask for nothing: then the problem stays as it is.
RigidProblem WithLine(RigidProblem problem, const LineCommand& command);

}  // namespace tavrelo::mechanics::rigid
