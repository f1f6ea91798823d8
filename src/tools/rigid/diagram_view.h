#pragma once

#include <array>
#include <cstddef>

#include "mechanics/rigid/rigid_problem.h"
#include "tools/rigid/force_look.h"

namespace tavrelo::tools::rigid {

/// What the diagrams need beside their problem.
struct DiagramView {
    std::array<bool, mechanics::rigid::kSystems> shown{};  // the bodies in view; index 0 is system 1
    ForceLooks looks = {};                                 // of the forces
    ForceLooks backup_looks = {};                          // of the forces in the backup

    /// Systems count from 1; one that does not exist is never in view.
    bool IsShown(int system) const { return IsSystem(system) && shown[static_cast<std::size_t>(system) - 1]; }
    void Show(int system, bool in_view) {
        if (IsSystem(system))
            shown[static_cast<std::size_t>(system) - 1] = in_view;
    }

    static bool IsSystem(int system) { return system >= 1 && system <= mechanics::rigid::kSystems; }
};

}  // namespace tavrelo::tools::rigid
