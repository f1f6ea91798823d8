#pragma once

#include <string>
#include <string_view>

#include "mechanics/rigid/body_force.h"
#include "mechanics/rigid/structure.h"

namespace tavrelo::mechanics::rigid {

/// Everything that a problem of rigid bodies consists of. It outlasts a change of tool; only the new-problem
/// command empties it.
struct RigidProblem : Structure {
    SystemPoints systems;
    LineTable lines;
    BodyForces forces;
    BodyForces backup;  // the forces before the last solution
    ShownDCL shown{};

    /// The letters of a system (1 to 5); empty for one that is not defined or does not exist.
    std::string_view LettersOfSystem(int system) const;
    bool IsDefined(int system) const { return !LettersOfSystem(system).empty(); }
    /// Whether the system's diagram is in view.
    bool IsShown(int system) const { return shown[static_cast<std::size_t>(system) - 1]; }
    void Show(int system, bool in_view) { shown[static_cast<std::size_t>(system) - 1] = in_view; }
};

/// What is told about a system, by its number as typed, that is not defined.
text::Refusal SystemNotDefined(std::string_view system);

}  // namespace tavrelo::mechanics::rigid
