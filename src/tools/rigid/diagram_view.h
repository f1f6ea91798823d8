#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "mechanics/rigid/rigid_problem.h"

namespace tavrelo::tools::rigid {

/// Degrees at which the user wants each force of unknown direction drawn, row by row of the table of forces;
/// nothing for a force that was not asked about.
using DrawDirections = std::vector<std::optional<double>>;

/// What the diagrams need beside their problem.
struct DiagramView {
    std::array<bool, mechanics::rigid::kSystems> shown{};  // the bodies in view; index 0 is system 1
    DrawDirections directions = {};                        // of the forces
    DrawDirections backup_directions = {};                 // of the forces in the backup

    std::optional<double> DirectionOf(std::size_t force) const {
        return force < directions.size() ? directions[force] : std::nullopt;
    }
    /// Systems count from 1; one that does not exist is never in view.
    bool IsShown(int system) const { return IsSystem(system) && shown[static_cast<std::size_t>(system) - 1]; }
    void Show(int system, bool in_view) {
        if (IsSystem(system))
            shown[static_cast<std::size_t>(system) - 1] = in_view;
    }

    static bool IsSystem(int system) { return system >= 1 && system <= mechanics::rigid::kSystems; }
};

}  // namespace tavrelo::tools::rigid
