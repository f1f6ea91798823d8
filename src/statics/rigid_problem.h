#pragma once

#include "statics/body_force.h"
#include "statics/rigid_picture.h"
#include "statics/structure.h"

namespace tavrelo::statics {

/// Separation vectors and the points that they lead to.
struct Structure {
    SegTable segments;
    PointTable points;
};

/// Everything that a problem of rigid bodies consists of. It outlasts a change of tool; only the new-problem
/// command empties it.
struct RigidProblem {
    SegTable segments;
    PointTable points;   // of the letters that the vectors reach from the first point on
    std::string origin;  // letter of the point at (0, 0); empty without vectors
    SystemPoints systems;
    LineTable lines;
    BodyForces forces;
    BodyForces backup;  // the forces before the last solution
    ShownDCL shown{};

    /// The letters of a system (1 to 5); empty for one that is not defined or does not exist.
    const std::string& LettersOfSystem(int system) const;
    bool IsDefined(int system) const { return !LettersOfSystem(system).empty(); }
};

}  // namespace tavrelo::statics
