#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/tools.h"

namespace tavrelo::sessions {

/// The problems of the tools that keep one, as a refusal has to leave them.
struct Problems {
    std::vector<notation::Force> particle;
    mechanics::rigid::RigidProblem rigid_body;  // without the backup, which an attempt to solve renews
    mechanics::motion::Problem motion;
    mechanics::projectile::Problem projectile;
};
Problems ProblemsOf(const app::Program::Tools& tools);

/// The tool whose problem is another one; nothing when all are the same.
std::optional<std::string> ChangedTool(const Problems& before, const Problems& after);

/// Where the tool in use shows something else than its problem holds: tables, lists, boxes of accelerations,
/// found solutions. `least_decimals` is the smallest number of decimals that was in force since the start.
std::optional<std::string> WrongShown(const app::Program::Tools& tools, int least_decimals);

}  // namespace tavrelo::sessions
