#pragma once

#include <string>
#include <string_view>

#include "mechanics/rigid/body_force.h"
#include "mechanics/rigid/structure.h"

namespace tavrelo::mechanics::rigid {

/// Everything that a problem of rigid bodies consists of: what the user gave, and what was found. The steps
/// (structure_steps.h, force_steps.h) take one and give a new one. It outlasts a change of tool; only the
/// new-problem command empties it.
struct RigidProblem {
    Structure structure;
    SystemPoints systems;
    LineTable lines;
    BodyForces forces;
    BodyForces backup;  // the forces before the last solution

    /// The letters of a system (1 to 5); empty for one that is not defined or does not exist.
    std::string_view LettersOfSystem(int system) const;
    bool IsDefined(int system) const { return !LettersOfSystem(system).empty(); }

    friend bool operator==(const RigidProblem&, const RigidProblem&) = default;
};

/// What is told about a system, by its number as typed, that is not defined.
text::Refusal SystemNotDefined(std::string_view system);

}  // namespace tavrelo::mechanics::rigid
