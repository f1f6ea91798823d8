#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/rigid/body_solver.h"
#include "mechanics/rigid/rigid_problem.h"

// The steps of the diagrams and of their solution. Each takes a problem and gives a new one.

namespace tavrelo::mechanics::rigid {

/// What is typed to add forces to a body: the chain of its points, the force on the first of them, and a
/// further value of the series for each of the others.
struct ForceEntry {
    int body = 1;                         // system 1 to 5
    std::string points;                   // capitals, trimmed
    std::string force;                    // trimmed
    std::span<const std::string> values;  // of the points behind the first one; an empty one gives no force
};

struct ForceRefusal {
    text::Refusal refusal;
    std::optional<std::size_t> point;  // place of the point whose force is refused; nothing: the points are
};

/// Why the chain of points takes no forces of the body: up to 6 letters of its own points, each once.
std::optional<text::Refusal> CheckForcePoints(const RigidProblem& problem, int body, std::string_view points);

/// Why the force on the first of several points begins no series; nothing for one that does.
std::optional<text::Refusal> CheckSeries(std::string_view force);

/// A problem with forces more, behind the others, and how each new one was written.
struct ForceStep {
    RigidProblem problem;
    std::vector<std::optional<notation::ForceRecord>> written;
};
/// Adds all forces of an entry, or none after a refusal. Fails with Overflow.
std::variant<ForceRefusal, ForceStep> WithForces(const RigidProblem& problem, const ForceEntry& entry,
                                                 int decimals);

/// The rows (from 0) of the forces of the whole that act on points of the body and that it does not have yet.
std::vector<std::size_t> ForcesToCopy(const RigidProblem& problem, int body);
/// With copies of these forces as forces of the body, behind the others.
RigidProblem WithCopies(const RigidProblem& problem, std::span<const std::size_t> rows, int body);

/// Without the force of that row (from 0); rows below move up.
RigidProblem WithoutForce(RigidProblem problem, std::size_t row);

/// A body whose equations are wanted, and the name of its reference point as typed.
struct BodyRequest {
    int body;
    std::string reference;
};
struct ReferenceRefusal {
    text::Refusal refusal;
    int body;  // whose reference point does not exist; 0 when no body was asked for
};
std::variant<ReferenceRefusal, std::vector<ChosenBody>> ChooseBodies(const RigidProblem& problem,
                                                                     std::span<const BodyRequest> requests);

/// With the present forces as the backup.
RigidProblem WithBackup(RigidProblem problem);
/// With the forces of the backup at the places that their points have now; an empty one changes nothing.
RigidProblem Restored(RigidProblem problem);

}  // namespace tavrelo::mechanics::rigid
